#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"

#include "SlateWrapperTypes.generated.h"

/** Whether a widget is shown and whether it takes part in hit testing. */
UENUM(BlueprintType)
enum class ESlateVisibility : uint8
{
	/** Visible and hit-testable. */
	Visible,
	/** Not visible and takes up no space in the layout. */
	Collapsed,
	/** Not visible but still takes up space in the layout. */
	Hidden,
	/** Visible, but neither the widget nor its children can be hit. */
	HitTestInvisible UMETA(DisplayName = "Not Hit-Testable (Self & All Children)"),
	/** Visible, but only its children can be hit. */
	SelfHitTestInvisible UMETA(DisplayName = "Not Hit-Testable (Self Only)"),
};

/** How a box panel slot takes its space along the box. */
namespace ESlateSizeRule
{
	enum Type : int
	{
		/** Only the space the content needs. */
		Automatic,
		/** A share of the space left, proportional to the value. */
		Fill,
	};
}

/** The size rule of a box panel slot, with its fill coefficient. */
struct FSlateChildSize
{
	/** The fill coefficient; used only by Fill. */
	float Value;

	ESlateSizeRule::Type SizeRule;

	FSlateChildSize()
		: Value(1.0f)
		, SizeRule(ESlateSizeRule::Fill)
	{
	}

	FSlateChildSize(ESlateSizeRule::Type InSizeRule)
		: Value(1.0f)
		, SizeRule(InSizeRule)
	{
	}

	bool operator==(const FSlateChildSize& Other) const
	{
		return Value == Other.Value && SizeRule == Other.SizeRule;
	}
};
