// Where a stack may go in a container: an explicit "to" is checked, no "to" takes the first space
// that fits, scanning slots in order or grid rows top to bottom, each left to right.
#pragma once

#include "Api/RequestFields.h"
#include "Store/Records.h"

#include <vector>

namespace quorvel::emulator
{
	struct Placement
	{
		int x = -1;
		int y = -1;
		int slotIndex = -1;
		bool rotated = false;
	};

	/**
	 * Places `stack` (its footprint and current rotation) among `others`, which must not include the
	 * stack itself. `to` is the request's placement object or null. Refuses with 422 out_of_bounds or
	 * invalid_placement, 409 cell_occupied or container_full.
	 */
	Placement placeStack(const Container& container, const std::vector<Stack>& others, const Stack& stack, const Json* to);

	/** Writes the placement into the stack, in the form the container's layout stores. */
	void applyPlacement(Stack& stack, const Placement& placement);
}
