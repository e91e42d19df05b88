// Headless only: the renderer that stands in for the engine's GPU renderer. It paints the draw
// elements of each window into an image: boxes and images as tinted rectangles or textures, borders
// as their edges, text with the font cache that layout measured it with, layers in ascending order
// and paint order within a layer, everything anti-aliased and clipped to the window.
#pragma once

#include "CoreMinimal.h"
#include "Headless/HeadlessImage.h"
#include "Rendering/SlateRenderer.h"

class FSlateWindowElementList;
class SWindow;

class HEADLESSRENDERER_API FSlateImageRenderer : public FSlateRenderer
{
public:
	/** Paints the elements over a canvas of ClearColor; the elements are in window pixels. */
	FHeadlessImage RenderElementList(const FSlateWindowElementList& ElementList, FIntPoint SizeInPixels,
		const FLinearColor& ClearColor = FLinearColor::Black) const;

	/** Renders each window of the buffer at its size on screen; the images are kept until the next draw. */
	virtual void DrawWindows(FSlateDrawBuffer& InWindowDrawBuffer) override;

	/** What the last DrawWindows painted for the window; null when it painted nothing for it. */
	const FHeadlessImage* GetLastImage(const SWindow& Window) const;

	/** The colour windows are cleared to before DrawWindows paints them. */
	FLinearColor WindowClearColor = FLinearColor::Black;

private:
	struct FWindowImage
	{
		TWeakPtr<SWindow> Window;
		FHeadlessImage Image;
	};

	TArray<FWindowImage> LastImages;
};
