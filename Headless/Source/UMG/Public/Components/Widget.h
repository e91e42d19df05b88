#pragma once

#include "CoreMinimal.h"
#include "Components/SlateWrapperTypes.h"
#include "Components/Visual.h"

#include "Widget.generated.h"

/** The base class of every UMG widget. */
UCLASS(Abstract)
class UMG_API UWidget : public UVisual
{
	GENERATED_BODY()

public:
	UWidget(const FObjectInitializer& ObjectInitializer);

	ESlateVisibility GetVisibility() const;
	virtual void SetVisibility(ESlateVisibility InVisibility);

protected:
	/** The visibility of the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Behavior")
	ESlateVisibility Visibility;
};
