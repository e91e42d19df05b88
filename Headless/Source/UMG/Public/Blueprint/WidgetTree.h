#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"

#include "WidgetTree.generated.h"

class UUserWidget;
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

	/** Makes a widget of the class inside this tree; a user widget is created and initialized as CreateWidget does. */
	template <typename WidgetT>
	WidgetT* ConstructWidget(TSubclassOf<WidgetT> WidgetClass = WidgetT::StaticClass(), FName WidgetName = NAME_None)
	{
		return static_cast<WidgetT*>(ConstructWidgetOfClass(WidgetClass, WidgetName));
	}

private:
	UWidget* ConstructWidgetOfClass(UClass* WidgetClass, FName WidgetName);
};
