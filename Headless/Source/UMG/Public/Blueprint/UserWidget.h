#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Templates/SubclassOf.h"

#include "UserWidget.generated.h"

class UWidgetTree;

/**
 * A widget made of other widgets, held in its own widget tree. Each time its Slate widget is
 * built for the screen it is constructed (NativeConstruct); when that Slate widget is released
 * it is destructed (NativeDestruct).
 */
UCLASS(Abstract)
class UMG_API UUserWidget : public UWidget
{
	GENERATED_BODY()

public:
	UUserWidget(const FObjectInitializer& ObjectInitializer);

	/** Gives the widget its widget tree if it has none; CreateWidget calls it. Returns true the first time. */
	virtual bool Initialize();

	/** Shows the widget on the viewport, above widgets of lower z-order. */
	void AddToViewport(int32 ZOrder = 0);

	/** Takes the widget off the viewport, or out of its parent panel. */
	virtual void RemoveFromParent() override;

	bool IsInViewport() const;

	UWidget* GetRootWidget() const;

	/** True while the widget is shown on the editor's design surface. */
	bool IsDesignTime() const;

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** The widgets of this user widget. */
	UPROPERTY(Transient, DuplicateTransient)
	TObjectPtr<UWidgetTree> WidgetTree;

	/** Creates a user widget of the class with the outer; null for a class that is not a concrete user widget. */
	static UUserWidget* CreateWidgetInstance(UObject* OwningObject, UClass* UserWidgetClass, FName WidgetName);

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void OnWidgetRebuilt() override;

	/** Once, from Initialize, for a widget that has a player context; headless, no widget has one. */
	virtual void NativeOnInitialized();
	virtual void NativeConstruct();
	virtual void NativeDestruct();

private:
	bool bInitialized = false;
	bool bConstructed = false;
};

/** Creates and initializes a user widget; the owner becomes its outer. */
template <typename WidgetT = UUserWidget>
WidgetT* CreateWidget(UObject* OwningObject, TSubclassOf<UUserWidget> UserWidgetClass = WidgetT::StaticClass(), FName WidgetName = NAME_None)
{
	return Cast<WidgetT>(UUserWidget::CreateWidgetInstance(OwningObject, UserWidgetClass, WidgetName));
}
