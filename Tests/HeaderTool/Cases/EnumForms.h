#pragma once

#include "CoreMinimal.h"

#include "EnumForms.generated.h"

/** How a container arranges its stacks. */
UENUM(BlueprintType)
enum class EQuorvelContainerLayout : uint8
{
	/** A two-dimensional grid. */
	Grid = 0 UMETA(DisplayName = "Grid Layout"),
	// A flat run of equal slots.
	Slots UMETA(DisplayName = "Slots", ToolTip = "Explicit tooltips win"),
	Hidden = 1 << 3 UMETA(Hidden),
	Count UMETA(Hidden)
};

UENUM()
enum EQuorvelLegacyMode
{
	LM_Off,
	LM_On = 3,
	LM_Max,
};

UENUM(BlueprintType)
namespace EQuorvelOldStyle
{
	enum Type
	{
		First,
		Second
	};
}
