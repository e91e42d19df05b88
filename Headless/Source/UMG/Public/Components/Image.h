#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Styling/SlateBrush.h"

#include "Image.generated.h"

class SImage;
class UTexture2D;

/** Draws a brush: a texture, or by default a plain 32 x 32 rectangle, tinted by its colour. */
UCLASS()
class UMG_API UImage : public UWidget
{
	GENERATED_BODY()

public:
	UImage(const FObjectInitializer& ObjectInitializer);

	/** Tints the brush. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance")
	FLinearColor ColorAndOpacity;

	const FLinearColor& GetColorAndOpacity() const
	{
		return ColorAndOpacity;
	}

	void SetColorAndOpacity(FLinearColor InColorAndOpacity);
	void SetOpacity(float InOpacity);

	const FSlateBrush& GetBrush() const
	{
		return Brush;
	}

	void SetBrush(const FSlateBrush& InBrush);

	/** Draws the texture; with bMatchSize the image also asks for the texture's size in pixels. */
	void SetBrushFromTexture(UTexture2D* Texture, bool bMatchSize = false);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** The brush's texture is held through the brush, which reflection does not see. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	FSlateBrush Brush;

private:
	TSharedPtr<SImage> MyImage;
};
