#include "Rendering/SlateRenderer.h"

FSlateRenderer::FSlateRenderer()
	: FontCache(MakeShared<FSlateFontCache>())
	, FontMeasure(FSlateFontMeasure::Create(FontCache))
{
}
