#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/Margin.h"

#include "TextWidgetTypes.generated.h"

/** The base of widgets that lay out text: justification, wrapping, margin and line height. */
UCLASS(Abstract)
class UMG_API UTextLayoutWidget : public UWidget
{
	GENERATED_BODY()

public:
	UTextLayoutWidget(const FObjectInitializer& ObjectInitializer);

	ETextJustify::Type GetJustification() const
	{
		return Justification;
	}

	/** How lines are placed across the widget's width. */
	virtual void SetJustification(ETextJustify::Type InJustification);

	bool GetAutoWrapText() const
	{
		return AutoWrapText;
	}

	/** Whether lines break to fit the width the widget was last given. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Wrapping")
	bool AutoWrapText;

	/** Lines break before this width, in slate units; zero or less for no fixed width. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Wrapping")
	float WrapTextAt;

	/** Height of a line as a fraction of the font's line height. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance")
	float LineHeightPercentage;

	FMargin Margin;

protected:
	ETextJustify::Type Justification;
};
