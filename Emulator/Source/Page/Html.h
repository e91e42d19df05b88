#pragma once

#include <string>
#include <string_view>

namespace quorvel::emulator
{
	/** Text made safe for HTML content and quoted attribute values alike. */
	std::string escapeHtml(std::string_view text);
}
