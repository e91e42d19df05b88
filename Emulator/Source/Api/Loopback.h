#pragma once

#include <string_view>

namespace quorvel::emulator
{
	/** Whether a peer address, as httplib writes it, is this machine: 127.0.0.0/8, ::1, or a
	    127.x address mapped into IPv6. Only such peers may change or read the emulator's insides. */
	bool isLoopbackAddress(std::string_view address);
}
