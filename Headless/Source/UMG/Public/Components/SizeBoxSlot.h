#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"

#include "SizeBoxSlot.generated.h"

class SBox;

/** The slot of a size box's content: padding and alignment inside the box. */
UCLASS()
class UMG_API USizeBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	USizeBoxSlot(const FObjectInitializer& ObjectInitializer);

	FMargin GetPadding() const
	{
		return Padding;
	}

	void SetPadding(FMargin InPadding);

	EHorizontalAlignment GetHorizontalAlignment() const
	{
		return HorizontalAlignment;
	}

	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const
	{
		return VerticalAlignment;
	}

	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Puts the content's Slate widget into the box. */
	void BuildSlot(TSharedRef<SBox> InSizeBox);

private:
	FMargin Padding;
	EHorizontalAlignment HorizontalAlignment;
	EVerticalAlignment VerticalAlignment;

	TWeakPtr<SBox> SizeBox;
};
