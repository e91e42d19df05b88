#pragma once

#include "CoreMinimal.h"

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
