// Hashes of the built-in types. Containers find a key's hash through an unqualified GetTypeHash call,
// so user types add theirs as a friend or in their own namespace.
#pragma once

#include "HAL/Platform.h"

#include <cstring>
#include <type_traits>

// Bob Jenkins' mix: good avalanche for combining hashes that will be stored.
[[nodiscard]] inline constexpr uint32 HashCombine(uint32 A, uint32 C)
{
	uint32 B = 0x9e3779b9;
	A += B;

	A -= B; A -= C; A ^= (C >> 13);
	B -= C; B -= A; B ^= (A << 8);
	C -= A; C -= B; C ^= (B >> 13);
	A -= B; A -= C; A ^= (C >> 12);
	B -= C; B -= A; B ^= (A << 16);
	C -= A; C -= B; C ^= (B >> 5);
	A -= B; A -= C; A ^= (C >> 3);
	B -= C; B -= A; B ^= (A << 10);
	C -= A; C -= B; C ^= (B >> 15);

	return C;
}

// Cheaper combine for transient hashes; the result may differ between runs of different builds.
[[nodiscard]] inline constexpr uint32 HashCombineFast(uint32 A, uint32 B)
{
	return A ^ (B + 0x9e3779b9 + (A << 6) + (A >> 2));
}

[[nodiscard]] inline uint32 PointerHash(const void* Key)
{
	// Allocations are aligned, so the low bits carry no information.
	const UPTRINT PtrInt = reinterpret_cast<UPTRINT>(Key) >> 4;
	return static_cast<uint32>(PtrInt) ^ static_cast<uint32>(static_cast<uint64>(PtrInt) >> 32);
}

[[nodiscard]] inline uint32 PointerHash(const void* Key, uint32 C)
{
	return HashCombine(PointerHash(Key), C);
}

template <typename ScalarType>
	requires (std::is_integral_v<ScalarType> || std::is_enum_v<ScalarType>)
[[nodiscard]] inline constexpr uint32 GetTypeHash(ScalarType Value)
{
	if constexpr (std::is_enum_v<ScalarType>)
	{
		return GetTypeHash(static_cast<std::underlying_type_t<ScalarType>>(Value));
	}
	else if constexpr (sizeof(ScalarType) <= 4)
	{
		return static_cast<uint32>(Value);
	}
	else
	{
		const uint64 Wide = static_cast<uint64>(Value);
		return static_cast<uint32>(Wide) + static_cast<uint32>(Wide >> 32) * 23;
	}
}

[[nodiscard]] inline uint32 GetTypeHash(float Value)
{
	// +0 and -0 compare equal, so they must hash equal.
	if (Value == 0.0f)
	{
		Value = 0.0f;
	}
	uint32 Bits;
	std::memcpy(&Bits, &Value, sizeof(Bits));
	return Bits;
}

[[nodiscard]] inline uint32 GetTypeHash(double Value)
{
	if (Value == 0.0)
	{
		Value = 0.0;
	}
	uint64 Bits;
	std::memcpy(&Bits, &Value, sizeof(Bits));
	return GetTypeHash(Bits);
}

template <typename T>
[[nodiscard]] inline uint32 GetTypeHash(T* Value)
{
	return PointerHash(Value);
}

[[nodiscard]] inline uint32 GetTypeHash(std::nullptr_t)
{
	return 0;
}
