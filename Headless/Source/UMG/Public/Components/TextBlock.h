#pragma once

#include "CoreMinimal.h"
#include "Components/TextWidgetTypes.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateColor.h"

#include "TextBlock.generated.h"

class STextBlock;

/** A line or block of text; by default white, in the default font's bold face at size 24. */
UCLASS()
class UMG_API UTextBlock : public UTextLayoutWidget
{
	GENERATED_BODY()

public:
	UTextBlock(const FObjectInitializer& ObjectInitializer);

	FText GetText() const;
	virtual void SetText(FText InText);

	const FSlateColor& GetColorAndOpacity() const
	{
		return ColorAndOpacity;
	}

	void SetColorAndOpacity(FSlateColor InColorAndOpacity);
	void SetOpacity(float InOpacity);

	const FSlateFontInfo& GetFont() const
	{
		return Font;
	}

	void SetFont(FSlateFontInfo InFontInfo);

	virtual void SetJustification(ETextJustify::Type InJustification) override;
	void SetAutoWrapText(bool InAutoTextWrap);
	void SetMinDesiredWidth(float InMinDesiredWidth);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	/** The text to show. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Content", meta = (MultiLine = "true"))
	FText Text;

	/** The narrowest the block asks to be. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance")
	float MinDesiredWidth;

	FSlateColor ColorAndOpacity;
	FSlateFontInfo Font;

private:
	TSharedPtr<STextBlock> MyTextBlock;
};
