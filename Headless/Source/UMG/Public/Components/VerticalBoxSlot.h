#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/SBoxPanel.h"

#include "VerticalBoxSlot.generated.h"

/** A child's place in a vertical box: padding, its share of the height, and its alignment. */
UCLASS()
class UMG_API UVerticalBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UVerticalBoxSlot(const FObjectInitializer& ObjectInitializer);

	FMargin GetPadding() const
	{
		return Padding;
	}

	void SetPadding(FMargin InPadding);

	FSlateChildSize GetSize() const
	{
		return Size;
	}

	void SetSize(FSlateChildSize InSize);

	EHorizontalAlignment GetHorizontalAlignment() const
	{
		return HorizontalAlignment;
	}

	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const
	{
		return VerticalAlignment;
	}

	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content's Slate widget to the box in a new Slate slot. */
	void BuildSlot(TSharedRef<SVerticalBox> InVerticalBox);

private:
	friend class UVerticalBox;

	SVerticalBox::FSlot* GetLiveSlot() const;

	FMargin Padding;
	FSlateChildSize Size;
	EHorizontalAlignment HorizontalAlignment;
	EVerticalAlignment VerticalAlignment;

	// The Slate slot belongs to the box; it is only used while the box lives.
	SVerticalBox::FSlot* Slot = nullptr;
	TWeakPtr<SVerticalBox> VerticalBox;
};
