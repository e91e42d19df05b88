#include "Domain/Ids.h"

#include <cstdint>
#include <random>

namespace quorvel::emulator
{
	namespace
	{
		std::string randomHex(int digits)
		{
			thread_local std::mt19937_64 generator(std::random_device{}());
			static constexpr char hex[] = "0123456789abcdef";
			std::string result;
			result.reserve(digits);
			while (static_cast<int>(result.size()) < digits)
			{
				std::uint64_t bits = generator();
				for (int i = 0; i < 16 && static_cast<int>(result.size()) < digits; ++i, bits >>= 4)
				{
					result += hex[bits & 0xf];
				}
			}
			return result;
		}
	}

	std::string newId(const std::string& prefix)
	{
		return prefix + "_" + randomHex(16);
	}

	std::string newToken()
	{
		return randomHex(64);
	}
}
