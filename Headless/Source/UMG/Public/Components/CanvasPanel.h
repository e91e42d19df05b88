#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"

#include "CanvasPanel.generated.h"

class SConstraintCanvas;
class UCanvasPanelSlot;

/** Places its children at explicit positions and sizes, in z-order. It asks for no size of its own. */
UCLASS()
class UMG_API UCanvasPanel : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget to the canvas; returns its slot. */
	UCanvasPanelSlot* AddChildToCanvas(UWidget* Content);

	TSharedPtr<SConstraintCanvas> GetCanvasWidget() const
	{
		return MyCanvas;
	}

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual UClass* GetSlotClass() const override;
	virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

private:
	TSharedPtr<SConstraintCanvas> MyCanvas;
};
