#include "Slate/SObjectWidget.h"

#include "Blueprint/UserWidget.h"

void SObjectWidget::Construct(const FArguments& InArgs)
{
	WidgetObject = InArgs._WidgetObject;
	ChildSlot[InArgs._Content.Widget];
}
