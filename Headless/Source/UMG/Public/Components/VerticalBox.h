#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"

#include "VerticalBox.generated.h"

class SVerticalBox;
class UVerticalBoxSlot;

/** Stacks its children top to bottom. */
UCLASS()
class UMG_API UVerticalBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget at the bottom; returns its slot. */
	UVerticalBoxSlot* AddChildToVerticalBox(UWidget* Content);

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual UClass* GetSlotClass() const override;
	virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

private:
	TSharedPtr<SVerticalBox> MyVerticalBox;
};
