#include "Blueprint/UserWidget.h"

#include "Blueprint/WidgetTree.h"

UUserWidget::UUserWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	// A user widget is a container first: it lets its children be hit, not itself.
	Visibility = ESlateVisibility::SelfHitTestInvisible;
}

bool UUserWidget::IsDesignTime() const
{
	return false;
}

void UUserWidget::NativeConstruct()
{
}
