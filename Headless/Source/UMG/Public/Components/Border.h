#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Types/SlateEnums.h"

#include "Border.generated.h"

class SBorder;

/** A content widget drawn over a brush, with padding and alignment for its content. */
UCLASS()
class UMG_API UBorder : public UContentWidget
{
	GENERATED_BODY()

public:
	UBorder(const FObjectInitializer& ObjectInitializer);

	/** Space between the border's edge and its content; the engine's default is 4 across and 2 down. */
	FMargin Padding;

	EHorizontalAlignment HorizontalAlignment;
	EVerticalAlignment VerticalAlignment;

	/** The brush drawn behind the content; by default a plain rectangle. */
	FSlateBrush Background;

	/** Tints the brush. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor BrushColor;

	/** Tints the content. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FLinearColor ContentColorAndOpacity;

	/** Scales the size the border asks for. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector2D DesiredSizeScale;

	FMargin GetPadding() const
	{
		return Padding;
	}

	EHorizontalAlignment GetHorizontalAlignment() const
	{
		return HorizontalAlignment;
	}

	EVerticalAlignment GetVerticalAlignment() const
	{
		return VerticalAlignment;
	}

	void SetPadding(FMargin InPadding);
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
	void SetBrushColor(FLinearColor InBrushColor);
	FLinearColor GetBrushColor() const;
	void SetContentColorAndOpacity(FLinearColor InContentColorAndOpacity);
	void SetBrush(const FSlateBrush& InBrush);
	void SetDesiredSizeScale(FVector2D InScale);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual UClass* GetSlotClass() const override;
	virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

private:
	TSharedPtr<SBorder> MyBorder;
};
