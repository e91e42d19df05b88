#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"

#include "BorderSlot.generated.h"

class SBorder;

/** The slot of a border's content. Its padding and alignment are the border's own, so setting them here sets the border's. */
UCLASS()
class UMG_API UBorderSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	FMargin GetPadding() const;
	void SetPadding(FMargin InPadding);
	EHorizontalAlignment GetHorizontalAlignment() const;
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);
	EVerticalAlignment GetVerticalAlignment() const;
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	/** Puts the content's Slate widget into the border's. */
	void BuildSlot(TSharedRef<SBorder> InBorder);
};
