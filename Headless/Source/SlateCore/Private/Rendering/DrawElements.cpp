#include "Rendering/DrawElements.h"

#include "Widgets/SWindow.h"

void FSlateDrawElement::Init(uint32 InLayer, const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	Layer = int32(InLayer);
	RenderTransform = PaintGeometry.GetAccumulatedRenderTransform();
	Position = PaintGeometry.DrawPosition;
	LocalSize = PaintGeometry.GetLocalSize();
	Scale = PaintGeometry.DrawScale;
	DrawEffects = InDrawEffects;
	Tint = InTint;
}

void FSlateDrawElement::MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush,
	ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (!InBrush || InBrush->DrawAs == ESlateBrushDrawType::NoDrawType || InTint.A == 0.0f)
	{
		return;
	}
	FSlateDrawElement& Element = ElementList.AddUninitialized();
	Element.Init(InLayer, PaintGeometry, InDrawEffects, InTint);
	Element.Brush = *InBrush;
	switch (InBrush->DrawAs)
	{
	case ESlateBrushDrawType::Border:
		Element.ElementType = EElementType::ET_Border;
		break;
	case ESlateBrushDrawType::RoundedBox:
		Element.ElementType = EElementType::ET_RoundedBox;
		break;
	default:
		Element.ElementType = EElementType::ET_Box;
		break;
	}
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText,
	const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (InText.IsEmpty() || InTint.A == 0.0f)
	{
		return;
	}
	FSlateDrawElement& Element = ElementList.AddUninitialized();
	Element.Init(InLayer, PaintGeometry, InDrawEffects, InTint);
	Element.ElementType = EElementType::ET_Text;
	Element.Text = InText;
	Element.FontInfo = InFontInfo;
}

FSlateWindowElementList& FSlateDrawBuffer::AddWindowElementList(TSharedRef<SWindow> ForWindow)
{
	TSharedRef<FSlateWindowElementList> List = MakeShared<FSlateWindowElementList>(TSharedPtr<SWindow>(ForWindow));
	WindowElementLists.Add(List);
	return *List;
}
