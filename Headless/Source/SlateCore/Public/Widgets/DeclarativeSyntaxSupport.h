// Slate's declarative syntax: SNew(SBorder).Padding(4)[ SNew(STextBlock) ] builds the arguments
// with chained setters, then "<<=" creates the widget and constructs it from them.
#pragma once

#include "Containers/Array.h"
#include "Layout/Visibility.h"
#include "Math/Vector2D.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Rendering/SlateRenderTransform.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

#define SNew(WidgetType) TDecl<WidgetType>(#WidgetType) <<= typename WidgetType::FArguments()

#define SAssignNew(ExposeAs, WidgetType) TDecl<WidgetType>(#WidgetType).Expose(ExposeAs) <<= typename WidgetType::FArguments()

// A named slot's content; never null, so widgets need not check.
struct FAlwaysValidWidget
{
	FAlwaysValidWidget()
		: Widget(SNullWidget::NullWidget)
	{
	}

	TSharedRef<SWidget> Widget;
};

// What ".Content()[ Widget ]" returns: the slot waiting for its widget.
template <typename DeclarationType>
struct NamedSlotProperty
{
	NamedSlotProperty(DeclarationType& InOwnerDeclaration, FAlwaysValidWidget& ContentToSet)
		: OwnerDeclaration(InOwnerDeclaration)
		, SlotContent(ContentToSet)
	{
	}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		SlotContent.Widget = InChild;
		return OwnerDeclaration;
	}

	DeclarationType& OwnerDeclaration;
	FAlwaysValidWidget& SlotContent;
};

// The arguments every widget accepts.
struct FSlateBaseNamedArgs
{
	TAttribute<bool> _IsEnabled = true;
	TAttribute<EVisibility> _Visibility = EVisibility::Visible;
	float _RenderOpacity = 1.0f;
	TAttribute<TOptional<FSlateRenderTransform>> _RenderTransform;
	TAttribute<FVector2D> _RenderTransformPivot = FVector2D(0.0, 0.0);
	FName _Tag;
};

#define SLATE_PRIVATE_BASE_ATTRIBUTE(AttrType, AttrName) \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = MoveTemp(InAttribute); \
		return Me(); \
	}

template <typename InWidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	typedef typename InWidgetType::FArguments WidgetArgsType;

	WidgetArgsType& Me()
	{
		return *static_cast<WidgetArgsType*>(this);
	}

	SLATE_PRIVATE_BASE_ATTRIBUTE(bool, IsEnabled)
	SLATE_PRIVATE_BASE_ATTRIBUTE(EVisibility, Visibility)
	SLATE_PRIVATE_BASE_ATTRIBUTE(TOptional<FSlateRenderTransform>, RenderTransform)
	SLATE_PRIVATE_BASE_ATTRIBUTE(FVector2D, RenderTransformPivot)

	WidgetArgsType& RenderOpacity(float InRenderOpacity)
	{
		_RenderOpacity = InRenderOpacity;
		return Me();
	}

	WidgetArgsType& Tag(FName InTag)
	{
		_Tag = InTag;
		return Me();
	}
};

#define SLATE_BEGIN_ARGS(InWidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<InWidgetType> \
	{ \
		typedef FArguments WidgetArgsType; \
		typedef InWidgetType WidgetType; \
		FArguments()

#define SLATE_END_ARGS() \
	};

#define SLATE_ARGUMENT(ArgType, ArgName) \
	ArgType _##ArgName; \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = InArg; \
		return Me(); \
	}

#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	TAttribute<AttrType> _##AttrName; \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = MoveTemp(InAttribute); \
		return Me(); \
	}

#define SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	NamedSlotProperty<DeclarationType> SlotName() \
	{ \
		return NamedSlotProperty<DeclarationType>(*this, _##SlotName); \
	} \
	FAlwaysValidWidget _##SlotName;

#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		_##SlotName.Widget = InChild; \
		return Me(); \
	}

#define SLATE_SLOT_ARGUMENT(SlotType, SlotName) \
	TArray<typename SlotType::FSlotArguments> _##SlotName; \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return Me(); \
	} \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments&& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return Me(); \
	}

// Creates the widget; "<<=" with its arguments constructs it.
template <typename WidgetType>
struct TDecl
{
	explicit TDecl(const ANSICHAR* InType)
		: Widget(MakeShared<WidgetType>())
	{
		Widget->TypeOfWidget = FName(InType);
	}

	template <typename ExposeAsWidgetType>
	TDecl& Expose(TSharedPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	template <typename ExposeAsWidgetType>
	TDecl& Expose(TSharedRef<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	template <typename ExposeAsWidgetType>
	TDecl& Expose(TWeakPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) const
	{
		Widget->SWidgetConstruct(InArgs);
		Widget->Construct(InArgs);
		return Widget;
	}

	TSharedRef<WidgetType> Widget;
};
