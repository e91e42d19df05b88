#pragma once

#include <string>

namespace quorvel::emulator
{
	/** A prefix and 16 random hex digits: "ctr_3f9a...". Random rather than sequential so that
	    ids from one database never look valid in another. */
	std::string newId(const std::string& prefix);

	/** 64 random hex digits: long enough that a token cannot be guessed. */
	std::string newToken();
}
