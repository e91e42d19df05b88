#include "Blueprint/UserWidget.h"

#include "Blueprint/WidgetTree.h"
#include "Headless/HeadlessViewport.h"
#include "UObject/Package.h"
#include "Widgets/SNullWidget.h"

DEFINE_LOG_CATEGORY_STATIC(LogUMG, Log, All);

UUserWidget::UUserWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	// A user widget is a container first: it lets its children be hit, not itself.
	Visibility = ESlateVisibility::SelfHitTestInvisible;
}

UUserWidget* UUserWidget::CreateWidgetInstance(UObject* OwningObject, UClass* UserWidgetClass, FName WidgetName)
{
	if (UserWidgetClass == nullptr || !UserWidgetClass->IsChildOf(UUserWidget::StaticClass()) || UserWidgetClass->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_LOG(LogUMG, Error, TEXT("CreateWidget cannot create a widget of class '%s'."), UserWidgetClass ? *UserWidgetClass->GetName() : TEXT("None"));
		return nullptr;
	}
	UObject* Outer = OwningObject ? OwningObject : (UObject*)GetTransientPackage();
	UUserWidget* Widget = NewObject<UUserWidget>(Outer, UserWidgetClass, WidgetName);
	Widget->Initialize();
	return Widget;
}

bool UUserWidget::Initialize()
{
	if (bInitialized)
	{
		return false;
	}
	bInitialized = true;
	if (WidgetTree == nullptr)
	{
		WidgetTree = NewObject<UWidgetTree>(this, TEXT("WidgetTree"), RF_Transient);
	}
	// The engine tells only a widget that has a player context, one made for a player or inside a
	// world's game. The headless engine has no players, so none of its widgets is told.
	return true;
}

void UUserWidget::AddToViewport(int32 ZOrder)
{
	FHeadlessViewport* Viewport = FHeadlessViewport::GetCurrent();
	if (Viewport == nullptr)
	{
		UE_LOG(LogUMG, Warning, TEXT("AddToViewport: there is no viewport to show '%s' on."), *GetName());
		return;
	}
	if (GetParent() != nullptr)
	{
		UE_LOG(LogUMG, Warning, TEXT("AddToViewport: '%s' is already in a panel; remove it from its parent first."), *GetName());
		return;
	}
	Viewport->AddWidget(this, ZOrder);
}

void UUserWidget::RemoveFromParent()
{
	FHeadlessViewport* Viewport = FHeadlessViewport::GetCurrent();
	if (Viewport && Viewport->HasWidget(this))
	{
		Viewport->RemoveWidget(this);
		return;
	}
	Super::RemoveFromParent();
}

bool UUserWidget::IsInViewport() const
{
	const FHeadlessViewport* Viewport = FHeadlessViewport::GetCurrent();
	return Viewport && Viewport->HasWidget(this);
}

UWidget* UUserWidget::GetRootWidget() const
{
	return WidgetTree ? WidgetTree->RootWidget.Get() : nullptr;
}

bool UUserWidget::IsDesignTime() const
{
	return Super::IsDesignTime();
}

TSharedRef<SWidget> UUserWidget::RebuildWidget()
{
	// A widget made without CreateWidget gets its tree here, on its first build.
	if (!bInitialized)
	{
		Initialize();
	}
	if (UWidget* RootWidget = GetRootWidget())
	{
		return RootWidget->TakeWidget();
	}
	return SNullWidget::NullWidget;
}

void UUserWidget::OnWidgetRebuilt()
{
	Super::OnWidgetRebuilt();
	if (!IsDesignTime())
	{
		bConstructed = true;
		NativeConstruct();
	}
}

void UUserWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (UWidget* RootWidget = GetRootWidget())
	{
		RootWidget->ReleaseSlateResources(bReleaseChildren);
	}
	if (bConstructed)
	{
		bConstructed = false;
		NativeDestruct();
	}
}

void UUserWidget::NativeOnInitialized()
{
}

void UUserWidget::NativeConstruct()
{
}

void UUserWidget::NativeDestruct()
{
}
