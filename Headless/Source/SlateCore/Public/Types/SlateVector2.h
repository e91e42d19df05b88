// Slate computes in single precision while the rest of the engine moved to double-precision
// vectors; these let one signature take either and hand back a value usable as either.
#pragma once

#include "Math/Vector2D.h"

namespace UE::Slate
{
	struct FDeprecateVector2DParameter : public FVector2f
	{
		FDeprecateVector2DParameter(const FVector2f& InValue)
			: FVector2f(InValue)
		{
		}

		FDeprecateVector2DParameter(const FVector2D& InValue)
			: FVector2f(InValue)
		{
		}

		FDeprecateVector2DParameter(float InX, float InY)
			: FVector2f(InX, InY)
		{
		}
	};

	struct FDeprecateVector2DResult : public FVector2f
	{
		FDeprecateVector2DResult(const FVector2f& InValue)
			: FVector2f(InValue)
		{
		}

		operator FVector2D() const
		{
			return FVector2D(X, Y);
		}
	};
}
