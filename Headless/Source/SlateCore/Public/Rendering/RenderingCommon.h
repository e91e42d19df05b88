// Types shared by widgets that paint and the renderer that draws what they painted.
#pragma once

#include "Math/Vector2D.h"
#include "Misc/EnumClassFlags.h"
#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"

enum class ESlateDrawEffect : uint8
{
	None = 0,
	NoBlending = 1 << 0,
	PreMultipliedAlpha = 1 << 1,
	NoGamma = 1 << 2,
	InvertAlpha = 1 << 3,
	NoPixelSnapping = 1 << 4,
	DisabledEffect = 1 << 5,
};
ENUM_CLASS_FLAGS(ESlateDrawEffect);

// Where an element is drawn: its local size, the layout part of its transform (position and
// scale in the window) and the full render transform, which may rotate or shear.
struct FPaintGeometry
{
	FVector2f DrawPosition;
	FVector2f DrawSize;
	float DrawScale;

	FPaintGeometry()
		: DrawPosition(0.0f, 0.0f)
		, DrawSize(0.0f, 0.0f)
		, DrawScale(1.0f)
		, LocalSize(0.0f, 0.0f)
	{
	}

	FPaintGeometry(const FSlateLayoutTransform& InAccumulatedLayoutTransform, const FSlateRenderTransform& InAccumulatedRenderTransform,
		const FVector2f& InLocalSize, bool bInHasRenderTransform)
		: DrawPosition(InAccumulatedLayoutTransform.GetTranslation2f())
		, DrawSize(InLocalSize * InAccumulatedLayoutTransform.GetScale())
		, DrawScale(InAccumulatedLayoutTransform.GetScale())
		, AccumulatedRenderTransform(InAccumulatedRenderTransform)
		, LocalSize(InLocalSize)
		, bHasRenderTransform(bInHasRenderTransform)
	{
	}

	const FSlateRenderTransform& GetAccumulatedRenderTransform() const
	{
		return AccumulatedRenderTransform;
	}

	FVector2f GetLocalSize() const
	{
		return LocalSize;
	}

	bool HasRenderTransform() const
	{
		return bHasRenderTransform;
	}

private:
	FSlateRenderTransform AccumulatedRenderTransform;
	FVector2f LocalSize;
	bool bHasRenderTransform = false;
};
