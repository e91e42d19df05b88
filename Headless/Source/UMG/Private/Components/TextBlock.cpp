#include "Components/TextBlock.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Text/STextBlock.h"

UTextBlock::UTextBlock(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, MinDesiredWidth(0.0f)
	, ColorAndOpacity(FLinearColor::White)
	, Font(FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 24.0f))
{
	// Text is not a hit target of its own.
	Visibility = ESlateVisibility::SelfHitTestInvisible;
}

FText UTextBlock::GetText() const
{
	return Text;
}

void UTextBlock::SetText(FText InText)
{
	Text = InText;
	if (MyTextBlock)
	{
		MyTextBlock->SetText(Text);
	}
}

void UTextBlock::SetColorAndOpacity(FSlateColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	if (MyTextBlock)
	{
		MyTextBlock->SetColorAndOpacity(ColorAndOpacity);
	}
}

void UTextBlock::SetOpacity(float InOpacity)
{
	FLinearColor CurrentColor = ColorAndOpacity.GetSpecifiedColor();
	CurrentColor.A = InOpacity;
	SetColorAndOpacity(FSlateColor(CurrentColor));
}

void UTextBlock::SetFont(FSlateFontInfo InFontInfo)
{
	Font = InFontInfo;
	if (MyTextBlock)
	{
		MyTextBlock->SetFont(Font);
	}
}

void UTextBlock::SetJustification(ETextJustify::Type InJustification)
{
	Super::SetJustification(InJustification);
	if (MyTextBlock)
	{
		MyTextBlock->SetJustification(InJustification);
	}
}

void UTextBlock::SetAutoWrapText(bool InAutoTextWrap)
{
	AutoWrapText = InAutoTextWrap;
	if (MyTextBlock)
	{
		MyTextBlock->SetAutoWrapText(InAutoTextWrap);
	}
}

void UTextBlock::SetMinDesiredWidth(float InMinDesiredWidth)
{
	MinDesiredWidth = InMinDesiredWidth;
	if (MyTextBlock)
	{
		MyTextBlock->SetMinDesiredWidth(InMinDesiredWidth);
	}
}

TSharedRef<SWidget> UTextBlock::RebuildWidget()
{
	MyTextBlock = SNew(STextBlock);
	return MyTextBlock.ToSharedRef();
}

void UTextBlock::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyTextBlock)
	{
		return;
	}
	MyTextBlock->SetText(Text);
	MyTextBlock->SetFont(Font);
	MyTextBlock->SetColorAndOpacity(ColorAndOpacity);
	MyTextBlock->SetJustification(Justification);
	MyTextBlock->SetAutoWrapText(AutoWrapText);
	MyTextBlock->SetWrapTextAt(WrapTextAt);
	MyTextBlock->SetMargin(Margin);
	MyTextBlock->SetLineHeightPercentage(LineHeightPercentage);
	MyTextBlock->SetMinDesiredWidth(MinDesiredWidth);
}

void UTextBlock::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyTextBlock.Reset();
}
