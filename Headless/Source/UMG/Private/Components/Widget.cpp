#include "Components/Widget.h"

#include "Blueprint/UserWidget.h"
#include "Components/PanelSlot.h"
#include "Components/PanelWidget.h"
#include "Slate/SObjectWidget.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

UWidget::UWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RenderTransformPivot(0.5, 0.5)
	, Visibility(ESlateVisibility::Visible)
	, RenderOpacity(1.0f)
{
}

EVisibility UWidget::ConvertSerializedVisibilityToRuntime(ESlateVisibility Input)
{
	switch (Input)
	{
	case ESlateVisibility::Visible:
		return EVisibility::Visible;
	case ESlateVisibility::Collapsed:
		return EVisibility::Collapsed;
	case ESlateVisibility::Hidden:
		return EVisibility::Hidden;
	case ESlateVisibility::HitTestInvisible:
		return EVisibility::HitTestInvisible;
	case ESlateVisibility::SelfHitTestInvisible:
		return EVisibility::SelfHitTestInvisible;
	}
	checkNoEntry();
	return EVisibility::Visible;
}

ESlateVisibility UWidget::ConvertRuntimeToSerializedVisibility(const EVisibility& Input)
{
	if (Input == EVisibility::Collapsed)
	{
		return ESlateVisibility::Collapsed;
	}
	if (Input == EVisibility::Hidden)
	{
		return ESlateVisibility::Hidden;
	}
	if (Input == EVisibility::HitTestInvisible)
	{
		return ESlateVisibility::HitTestInvisible;
	}
	if (Input == EVisibility::SelfHitTestInvisible)
	{
		return ESlateVisibility::SelfHitTestInvisible;
	}
	return ESlateVisibility::Visible;
}

ESlateVisibility UWidget::GetVisibility() const
{
	return Visibility;
}

void UWidget::SetVisibility(ESlateVisibility InVisibility)
{
	Visibility = InVisibility;
	if (TSharedPtr<SWidget> SafeWidget = MyWidget.Pin())
	{
		SafeWidget->SetVisibility(ConvertSerializedVisibilityToRuntime(InVisibility));
	}
}

void UWidget::SetRenderOpacity(float InOpacity)
{
	RenderOpacity = InOpacity;
	if (TSharedPtr<SWidget> SafeWidget = MyWidget.Pin())
	{
		SafeWidget->SetRenderOpacity(InOpacity);
	}
}

void UWidget::SetToolTipText(const FText& InToolTipText)
{
	ToolTipText = InToolTipText;
}

void UWidget::SetRenderTransform(FWidgetTransform InTransform)
{
	RenderTransform = InTransform;
	UpdateRenderTransform();
}

void UWidget::SetRenderScale(FVector2D Scale)
{
	RenderTransform.Scale = Scale;
	UpdateRenderTransform();
}

void UWidget::SetRenderShear(FVector2D Shear)
{
	RenderTransform.Shear = Shear;
	UpdateRenderTransform();
}

void UWidget::SetRenderTransformAngle(float Angle)
{
	RenderTransform.Angle = Angle;
	UpdateRenderTransform();
}

float UWidget::GetRenderTransformAngle() const
{
	return RenderTransform.Angle;
}

void UWidget::SetRenderTranslation(FVector2D Translation)
{
	RenderTransform.Translation = Translation;
	UpdateRenderTransform();
}

void UWidget::SetRenderTransformPivot(FVector2D Pivot)
{
	RenderTransformPivot = Pivot;
	if (TSharedPtr<SWidget> SafeWidget = MyWidget.Pin())
	{
		SafeWidget->SetRenderTransformPivot(Pivot);
	}
}

void UWidget::UpdateRenderTransform()
{
	if (TSharedPtr<SWidget> SafeWidget = MyWidget.Pin())
	{
		// An identity transform is left unset, so arrangement skips it entirely.
		SafeWidget->SetRenderTransform(RenderTransform.IsIdentity() ? TOptional<FSlateRenderTransform>() : TOptional<FSlateRenderTransform>(RenderTransform.ToSlateRenderTransform()));
	}
}

UPanelWidget* UWidget::GetParent() const
{
	return Slot ? Slot->Parent.Get() : nullptr;
}

void UWidget::RemoveFromParent()
{
	if (UPanelWidget* CurrentParent = GetParent())
	{
		CurrentParent->RemoveChild(this);
	}
}

TSharedRef<SWidget> UWidget::TakeWidget()
{
	if (TSharedPtr<SWidget> Existing = MyWidget.Pin())
	{
		return Existing.ToSharedRef();
	}

	TSharedRef<SWidget> Built = RebuildWidget();
	// A user widget gets a Slate widget of its own around its root's.
	if (UUserWidget* UserWidget = Cast<UUserWidget>(this))
	{
		Built = SNew(SObjectWidget).WidgetObject(UserWidget)[Built];
	}
	MyWidget = Built;
	SynchronizeProperties();
	OnWidgetRebuilt();
	return Built;
}

FVector2D UWidget::GetDesiredSize() const
{
	if (const TSharedPtr<SWidget> SafeWidget = MyWidget.Pin())
	{
		return SafeWidget->GetDesiredSize();
	}
	return FVector2D(0.0, 0.0);
}

TSharedPtr<SWidget> UWidget::GetCachedWidget() const
{
	// Whether or not a window has laid it out yet: until then its geometry is the default one.
	return MyWidget.Pin();
}

const FGeometry& UWidget::GetCachedGeometry() const
{
	return GetTickSpaceGeometry();
}

const FGeometry& UWidget::GetTickSpaceGeometry() const
{
	if (TSharedPtr<SWidget> SafeWidget = GetCachedWidget())
	{
		return SafeWidget->GetTickSpaceGeometry();
	}
	return SNullWidget::NullWidget->GetTickSpaceGeometry();
}

const FGeometry& UWidget::GetPaintSpaceGeometry() const
{
	if (TSharedPtr<SWidget> SafeWidget = GetCachedWidget())
	{
		return SafeWidget->GetPaintSpaceGeometry();
	}
	return SNullWidget::NullWidget->GetPaintSpaceGeometry();
}

bool UWidget::IsDesignTime() const
{
	return false;
}

void UWidget::SynchronizeProperties()
{
	TSharedPtr<SWidget> SafeWidget = MyWidget.Pin();
	if (!SafeWidget)
	{
		return;
	}
	SafeWidget->SetVisibility(ConvertSerializedVisibilityToRuntime(Visibility));
	SafeWidget->SetRenderOpacity(RenderOpacity);
	SafeWidget->SetRenderTransformPivot(RenderTransformPivot);
	UpdateRenderTransform();
}

void UWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
}

TSharedRef<SWidget> UWidget::RebuildWidget()
{
	return SNullWidget::NullWidget;
}

void UWidget::OnWidgetRebuilt()
{
}
