// What painting produces: per window, a list of draw elements in paint order, each on a layer.
// A renderer draws them by ascending layer, keeping paint order within a layer.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Fonts/SlateFontInfo.h"
#include "Math/Color.h"
#include "Rendering/RenderingCommon.h"
#include "Styling/SlateBrush.h"
#include "Templates/SharedPointer.h"

class SWindow;
class FSlateWindowElementList;

class FSlateDrawElement
{
public:
	enum class EElementType : uint8
	{
		ET_Box,
		ET_Border,
		ET_RoundedBox,
		ET_Text,
	};

	// Draws the brush over the geometry; brushes that draw nothing and invisible tints add no element.
	static SLATECORE_API void MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush,
		ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	// Draws one line of text with its top-left at the geometry's origin.
	static SLATECORE_API void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText,
		const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	EElementType GetElementType() const
	{
		return ElementType;
	}

	int32 GetLayer() const
	{
		return Layer;
	}

	const FSlateRenderTransform& GetRenderTransform() const
	{
		return RenderTransform;
	}

	FVector2f GetPosition() const
	{
		return Position;
	}

	FVector2f GetLocalSize() const
	{
		return LocalSize;
	}

	float GetScale() const
	{
		return Scale;
	}

	ESlateDrawEffect GetDrawEffects() const
	{
		return DrawEffects;
	}

	const FLinearColor& GetTint() const
	{
		return Tint;
	}

	// Box elements: the brush as it was when painted (image resource, margin, draw type).
	const FSlateBrush& GetBrush() const
	{
		return Brush;
	}

	// Text elements.
	const FString& GetText() const
	{
		return Text;
	}

	const FSlateFontInfo& GetFontInfo() const
	{
		return FontInfo;
	}

private:
	void Init(uint32 InLayer, const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint);

	EElementType ElementType = EElementType::ET_Box;
	int32 Layer = 0;
	FSlateRenderTransform RenderTransform;
	FVector2f Position = FVector2f(0.0f, 0.0f);
	FVector2f LocalSize = FVector2f(0.0f, 0.0f);
	float Scale = 1.0f;
	ESlateDrawEffect DrawEffects = ESlateDrawEffect::None;
	FLinearColor Tint = FLinearColor::White;
	FSlateBrush Brush;
	FString Text;
	FSlateFontInfo FontInfo;
};

class FSlateWindowElementList
{
public:
	explicit FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow = nullptr)
		: PaintWindow(InPaintWindow)
	{
	}

	TSharedPtr<SWindow> GetPaintWindow() const
	{
		return PaintWindow.Pin();
	}

	SWindow* GetWindow() const
	{
		return PaintWindow.Pin().Get();
	}

	const TArray<FSlateDrawElement>& GetDrawElements() const
	{
		return DrawElements;
	}

	FSlateDrawElement& AddUninitialized()
	{
		return DrawElements.AddDefaulted_GetRef();
	}

	void ResetElementList()
	{
		DrawElements.Empty();
	}

private:
	TWeakPtr<SWindow> PaintWindow;
	TArray<FSlateDrawElement> DrawElements;
};

// One frame's element lists, one per window painted.
class FSlateDrawBuffer
{
public:
	SLATECORE_API FSlateWindowElementList& AddWindowElementList(TSharedRef<SWindow> ForWindow);

	const TArray<TSharedRef<FSlateWindowElementList>>& GetWindowElementLists() const
	{
		return WindowElementLists;
	}

	void ClearBuffer()
	{
		WindowElementLists.Empty();
	}

private:
	TArray<TSharedRef<FSlateWindowElementList>> WindowElementLists;
};
