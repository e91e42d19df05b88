// The engine's math templates and their usual aliases (double-precision F*, single-precision F*f).
#pragma once

#include "HAL/Platform.h"

namespace UE::Math
{
	template <typename T>
	struct TVector2;

	template <typename InIntType>
	struct TIntPoint;
}

using FVector2D = UE::Math::TVector2<double>;
using FVector2f = UE::Math::TVector2<float>;
using FVector2d = UE::Math::TVector2<double>;

using FIntPoint = UE::Math::TIntPoint<int32>;
using FInt32Point = UE::Math::TIntPoint<int32>;
using FInt64Point = UE::Math::TIntPoint<int64>;
using FUintPoint = UE::Math::TIntPoint<uint32>;

struct FLinearColor;
struct FColor;
