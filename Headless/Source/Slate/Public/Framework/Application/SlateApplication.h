// The Slate application: here only the owner of the renderer, whose font services text widgets
// measure with, so that layout and drawing use the same faces.
#pragma once

#include "Rendering/SlateRenderer.h"
#include "Templates/SharedPointer.h"

class FSlateApplication
{
public:
	// Creates the application with the base renderer, which measures text but draws nothing.
	static SLATE_API void Create();
	// Creates the application around a renderer of the caller's, such as an image renderer.
	static SLATE_API void Create(const TSharedRef<FSlateRenderer>& InRenderer);
	static SLATE_API void Shutdown();

	static SLATE_API bool IsInitialized();

	// A headless process has no start-up sequence that must run first, so the application is
	// created with the base renderer on first use.
	static SLATE_API FSlateApplication& Get();

	FSlateRenderer* GetRenderer() const
	{
		return Renderer.Get();
	}

	SLATE_API void InitializeRenderer(const TSharedRef<FSlateRenderer>& InRenderer);

private:
	explicit FSlateApplication(const TSharedRef<FSlateRenderer>& InRenderer);

	TSharedPtr<FSlateRenderer> Renderer;
};
