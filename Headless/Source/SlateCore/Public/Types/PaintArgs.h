// What every widget's paint receives besides its geometry: the painting parent, time, and the
// offset from window space to desktop space (where cached geometry lives).
#pragma once

#include "Math/Vector2D.h"

class SWidget;

class FPaintArgs
{
public:
	FPaintArgs(const SWidget* InPaintParent, const FVector2D& InWindowOffset, double InCurrentTime, float InDeltaTime)
		: PaintParent(InPaintParent)
		, WindowOffset(InWindowOffset)
		, CurrentTime(InCurrentTime)
		, DeltaTime(InDeltaTime)
	{
	}

	FPaintArgs WithNewParent(const SWidget* InPaintParent) const
	{
		FPaintArgs Args(*this);
		Args.PaintParent = InPaintParent;
		return Args;
	}

	const SWidget* GetPaintParent() const
	{
		return PaintParent;
	}

	FVector2D GetWindowToDesktopTransform() const
	{
		return WindowOffset;
	}

	double GetCurrentTime() const
	{
		return CurrentTime;
	}

	float GetDeltaTime() const
	{
		return DeltaTime;
	}

private:
	const SWidget* PaintParent;
	FVector2D WindowOffset;
	double CurrentTime;
	float DeltaTime;
};
