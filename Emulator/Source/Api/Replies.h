// The JSON shapes the platform answers with.
#pragma once

#include "Api/RequestFields.h"
#include "Store/Records.h"

#include <string>
#include <vector>

namespace quorvel::emulator
{
	/** A stack as the stash panel reads it: grid stacks carry x, y and the covered cells,
	    slot stacks their slot index and key. */
	Json stackJson(const Container& container, const Stack& stack);

	/** The container with its size and every stack. */
	Json containerJson(const Container& container, const std::vector<Stack>& stacks);

	Json errorJson(const std::string& code, const std::string& message);
}
