#include "Blueprint/WidgetTree.h"

#include "Blueprint/UserWidget.h"
#include "Components/Widget.h"

UWidget* UWidgetTree::ConstructWidgetOfClass(UClass* WidgetClass, FName WidgetName)
{
	if (WidgetClass == nullptr || !WidgetClass->IsChildOf(UWidget::StaticClass()))
	{
		return nullptr;
	}
	if (WidgetClass->IsChildOf(UUserWidget::StaticClass()))
	{
		return CreateWidget<UUserWidget>(this, WidgetClass, WidgetName);
	}
	return NewObject<UWidget>(this, WidgetClass, WidgetName);
}
