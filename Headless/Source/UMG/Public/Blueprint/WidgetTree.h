#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "WidgetTree.generated.h"

class UWidget;

/** Owns the widgets of a user widget; every widget it constructs has it as outer. */
UCLASS()
class UMG_API UWidgetTree : public UObject
{
	GENERATED_BODY()

public:
	/** The root of the hierarchy. */
	UPROPERTY()
	TObjectPtr<UWidget> RootWidget;
};
