#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Layout/Margin.h"
#include "Widgets/Layout/Anchors.h"
#include "Widgets/Layout/SConstraintCanvas.h"

#include "CanvasPanelSlot.generated.h"

/** How a canvas child is placed: offsets from its anchors, and the point of the child that sits on them. */
struct FAnchorData
{
	/** Left and top are the position, right and bottom the size, unless the anchors stretch that axis. */
	FMargin Offsets;
	FAnchors Anchors;
	/** The point of the child placed at the position: (0, 0) its top-left corner, (1, 1) its bottom-right. */
	FVector2D Alignment;

	FAnchorData()
		: Offsets(0.0f, 0.0f, 100.0f, 30.0f)
		, Alignment(0.0, 0.0)
	{
	}

	bool operator==(const FAnchorData& Other) const
	{
		return Offsets == Other.Offsets && Anchors == Other.Anchors && Alignment == Other.Alignment;
	}
};

/** A child's place on a canvas. */
UCLASS()
class UMG_API UCanvasPanelSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UCanvasPanelSlot(const FObjectInitializer& ObjectInitializer);

	void SetLayout(const FAnchorData& InLayoutData);
	FAnchorData GetLayout() const;

	void SetPosition(FVector2D InPosition);
	FVector2D GetPosition() const;
	void SetSize(FVector2D InSize);
	FVector2D GetSize() const;
	void SetOffsets(FMargin InOffset);
	FMargin GetOffsets() const;
	void SetAnchors(FAnchors InAnchors);
	FAnchors GetAnchors() const;
	void SetAlignment(FVector2D InAlignment);
	FVector2D GetAlignment() const;

	/** Size the child at its desired size instead of the slot's size. */
	void SetAutoSize(bool InbAutoSize);
	bool GetAutoSize() const;

	/** Higher z-orders are drawn over lower ones; equal ones in the order they were added. */
	void SetZOrder(int32 InZOrder);
	int32 GetZOrder() const;

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content's Slate widget to the canvas in a new Slate slot. */
	void BuildSlot(TSharedRef<SConstraintCanvas> Canvas);

private:
	friend class UCanvasPanel;

	SConstraintCanvas::FSlot* GetLiveSlot() const;

	FAnchorData LayoutData;
	bool bAutoSize;
	int32 ZOrder;

	// The Slate slot belongs to the canvas; it is only used while the canvas lives.
	SConstraintCanvas::FSlot* Slot = nullptr;
	TWeakPtr<SConstraintCanvas> Canvas;
};
