// The renderer the application hands painted windows to, and the font services it owns so that
// measuring and drawing share one font cache. This base draws nothing; an image renderer
// overrides DrawWindows.
#pragma once

#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"
#include "Templates/SharedPointer.h"

class FSlateDrawBuffer;

class FSlateRenderer
{
public:
	SLATECORE_API FSlateRenderer();
	virtual ~FSlateRenderer() = default;

	virtual bool Initialize()
	{
		return true;
	}

	virtual void DrawWindows(FSlateDrawBuffer& InWindowDrawBuffer)
	{
	}

	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const
	{
		return FontMeasure;
	}

	TSharedRef<FSlateFontCache> GetFontCache() const
	{
		return FontCache;
	}

private:
	TSharedRef<FSlateFontCache> FontCache;
	TSharedRef<FSlateFontMeasure> FontMeasure;
};
