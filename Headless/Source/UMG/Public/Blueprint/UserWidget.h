#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"

#include "UserWidget.generated.h"

class UWidgetTree;

/** A widget made of other widgets, held in its own widget tree. */
UCLASS(Abstract)
class UMG_API UUserWidget : public UWidget
{
	GENERATED_BODY()

public:
	UUserWidget(const FObjectInitializer& ObjectInitializer);

	/** True while the widget is shown on the editor's design surface. */
	bool IsDesignTime() const;

	/** The widgets of this user widget. */
	UPROPERTY(Transient, DuplicateTransient)
	TObjectPtr<UWidgetTree> WidgetTree;

protected:
	virtual void NativeConstruct();
};
