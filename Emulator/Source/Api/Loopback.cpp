#include "Api/Loopback.h"

#include <arpa/inet.h>

#include <string>

namespace quorvel::emulator
{
	bool isLoopbackAddress(std::string_view address)
	{
		const std::string text(address);
		in_addr v4{};
		if (inet_pton(AF_INET, text.c_str(), &v4) == 1)
		{
			return (ntohl(v4.s_addr) >> 24) == 127;
		}
		in6_addr v6{};
		if (inet_pton(AF_INET6, text.c_str(), &v6) == 1)
		{
			return IN6_IS_ADDR_LOOPBACK(&v6) || (IN6_IS_ADDR_V4MAPPED(&v6) && v6.s6_addr[12] == 127);
		}
		return false;
	}
}
