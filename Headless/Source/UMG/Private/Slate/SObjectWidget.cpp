#include "Slate/SObjectWidget.h"

#include "Blueprint/UserWidget.h"

void SObjectWidget::Construct(const FArguments& InArgs)
{
	WidgetObject = InArgs._WidgetObject;
	ChildSlot[InArgs._Content.Widget];
}

SObjectWidget::~SObjectWidget()
{
	// Off every screen now: the children's Slate widgets go at once rather than linger in their
	// UMG widgets, and a constructed user widget is destructed.
	if (UUserWidget* Widget = WidgetObject.Get())
	{
		Widget->ReleaseSlateResources(true);
	}
}
