#pragma once

#include "CoreMinimal.h"

#include "QuorvelContainerLayout.generated.h"

/** How a container arranges its stacks. Fixed on the platform when the container is created. */
UENUM(BlueprintType)
enum class EQuorvelContainerLayout : uint8
{
	/** A two-dimensional grid in which a stack covers several cells. */
	Grid = 0,
	/** A flat run of equal slots. */
	Slots = 1,
};
