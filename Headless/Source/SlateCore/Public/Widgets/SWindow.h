// A top-level window on the desktop. Its size and position are in screen pixels; its content is
// laid out in slate units, which the DPI scale turns into pixels, so a point of the content
// lands on the desktop at ScreenPosition + DPIScale * Local.
#pragma once

#include "Internationalization/Text.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FSlateWindowElementList;
class FWidgetStyle;

class SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow)
		: _ClientSize(FVector2D(0.0, 0.0))
		, _ScreenPosition(FVector2D(0.0, 0.0))
		, _DPIScale(1.0f)
		{}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FText, Title)
		// Size of the client area in screen pixels.
		SLATE_ARGUMENT(FVector2D, ClientSize)
		SLATE_ARGUMENT(FVector2D, ScreenPosition)
		SLATE_ARGUMENT(float, DPIScale)
	SLATE_END_ARGS()

	SLATECORE_API SWindow();
	SLATECORE_API void Construct(const FArguments& InArgs);

	SLATECORE_API void SetContent(TSharedRef<SWidget> InContent);
	SLATECORE_API TSharedRef<const SWidget> GetContent() const;

	FText GetTitle() const
	{
		return Title.Get();
	}

	void SetTitle(const FText& InTitle)
	{
		Title = InTitle;
	}

	FVector2D GetPositionInScreen() const
	{
		return ScreenPosition;
	}

	FVector2D GetSizeInScreen() const
	{
		return Size;
	}

	FVector2D GetClientSizeInScreen() const
	{
		return Size;
	}

	void MoveWindowTo(FVector2D NewPosition)
	{
		ScreenPosition = NewPosition;
	}

	void Resize(FVector2D NewClientSize)
	{
		Size = NewClientSize;
	}

	float GetDPIScaleFactor() const
	{
		return DPIScale;
	}

	void SetDPIScaleFactor(float Factor)
	{
		DPIScale = Factor;
	}

	// Local (slate units) to screen pixels.
	FSlateLayoutTransform GetLocalToScreenTransform() const
	{
		return FSlateLayoutTransform(DPIScale, ScreenPosition);
	}

	// Local (slate units) to pixels relative to the window's top-left, the space painting uses.
	FSlateLayoutTransform GetLocalToWindowTransform() const
	{
		return FSlateLayoutTransform(DPIScale);
	}

	SLATECORE_API FGeometry GetWindowGeometryInScreen() const;
	SLATECORE_API FGeometry GetWindowGeometryInWindow() const;

	// Runs the prepass at the window's DPI scale, then paints in window space; painting arranges
	// every visible widget and caches its geometry (desktop space) on it.
	SLATECORE_API int32 PaintWindow(double CurrentTime, float DeltaTime, FSlateWindowElementList& OutDrawElements, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled);

private:
	TAttribute<FText> Title;
	FVector2D Size;
	FVector2D ScreenPosition;
	float DPIScale;
};
