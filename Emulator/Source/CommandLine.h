// QuorvelEmulator's command line, read into EmulatorOptions.
#pragma once

#include "EmulatorOptions.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvel::emulator
{
	/** Every option, as printed for a bad command line. */
	extern const char* const usageLine;

	/** The options the arguments set, over the defaults; later options win over earlier ones. After
	    an unknown option, a missing value or a value out of range: nullopt and the problem. */
	std::optional<EmulatorOptions> parseCommandLine(const std::vector<std::string>& arguments, std::string& problem);
}
