#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"

#include "PanelWidget.generated.h"

class UPanelSlot;

/** A widget that holds other widgets in slots. */
UCLASS(Abstract)
class UMG_API UPanelWidget : public UWidget
{
	GENERATED_BODY()

public:
	UPanelWidget(const FObjectInitializer& ObjectInitializer);

	int32 GetChildrenCount() const;
	UWidget* GetChildAt(int32 Index) const;
	TArray<UWidget*> GetAllChildren() const;
	int32 GetChildIndex(const UWidget* Content) const;
	bool HasChild(UWidget* Content) const;
	bool HasAnyChildren() const;

	/**
	 * Adds a widget at the end, taking it out of any panel it was in first.
	 * Returns its new slot, or null for a null widget or a panel that holds one child and has one.
	 */
	UPanelSlot* AddChild(UWidget* Content);

	/** Removes the child at the index; its slot is dropped and its Slate widgets released. */
	bool RemoveChildAt(int32 Index);
	bool RemoveChild(UWidget* Content);

	/** Removes every child, last first. */
	virtual void ClearChildren();

	TArray<UPanelSlot*> GetSlots() const;

	bool CanHaveMultipleChildren() const
	{
		return bCanHaveMultipleChildren;
	}

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual UClass* GetSlotClass() const;
	/** The Slate widget, if built, takes the new child. */
	virtual void OnSlotAdded(UPanelSlot* InSlot);
	/** The Slate widget, if built, lets the removed child go. */
	virtual void OnSlotRemoved(UPanelSlot* InSlot);

	/** The slots of the children, in order; a child lives as long as its slot is here. */
	UPROPERTY()
	TArray<TObjectPtr<UPanelSlot>> Slots;

	bool bCanHaveMultipleChildren;
};
