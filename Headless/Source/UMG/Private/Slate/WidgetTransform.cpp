#include "Slate/WidgetTransform.h"

#include <cmath>

namespace
{
	// A shear angle becomes the slope of the sheared axis; clamped short of a right angle, where it is infinite.
	float ShearFactor(double AngleDegrees)
	{
		if (AngleDegrees == 0.0)
		{
			return 0.0f;
		}
		const double Clamped = FMath::Clamp(AngleDegrees, -89.0, 89.0);
		return float(1.0 / std::tan(FMath::DegreesToRadians(90.0 - Clamped)));
	}
}

FSlateRenderTransform FWidgetTransform::ToSlateRenderTransform() const
{
	const FMatrix2x2 ScaleMatrix(FScale2f(float(Scale.X), float(Scale.Y)));
	const FMatrix2x2 ShearMatrix(1.0f, ShearFactor(Shear.Y), ShearFactor(Shear.X), 1.0f);
	const float Radians = float(FMath::DegreesToRadians(double(Angle)));
	const float Cos = std::cos(Radians);
	const float Sin = std::sin(Radians);
	const FMatrix2x2 RotationMatrix(Cos, Sin, -Sin, Cos);
	return FSlateRenderTransform(ScaleMatrix.Concatenate(ShearMatrix).Concatenate(RotationMatrix), FVector2f(Translation));
}
