// A user widget that fills its space with one colour and counts its constructions.
#pragma once

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Border.h"
#include "CoreMinimal.h"

#include "EngineLoopTestWidget.generated.h"

UCLASS()
class UEngineLoopTestWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	int32 Constructions = 0;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override
	{
		if (WidgetTree && WidgetTree->RootWidget == nullptr)
		{
			UBorder* Fill = WidgetTree->ConstructWidget<UBorder>();
			Fill->SetBrushColor(FLinearColor::Red);
			WidgetTree->RootWidget = Fill;
		}
		return Super::RebuildWidget();
	}

	virtual void NativeConstruct() override
	{
		Super::NativeConstruct();
		++Constructions;
	}
};
