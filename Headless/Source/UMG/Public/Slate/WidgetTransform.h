#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderTransform.h"

#include "WidgetTransform.generated.h"

/** A widget's render transform: scale, then shear, then rotation, then translation, about the widget's pivot. */
USTRUCT(BlueprintType)
struct UMG_API FWidgetTransform
{
	GENERATED_BODY()

	/** The amount to translate the widget in slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Translation = FVector2D(0.0, 0.0);

	/** The scale to apply to the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Scale = FVector2D(1.0, 1.0);

	/** The amount to shear the widget, in degrees. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Shear = FVector2D(0.0, 0.0);

	/** The angle in degrees to rotate the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	float Angle = 0.0f;

	FWidgetTransform() = default;

	FWidgetTransform(const FVector2D& InTranslation, const FVector2D& InScale, const FVector2D& InShear, float InAngle)
		: Translation(InTranslation)
		, Scale(InScale)
		, Shear(InShear)
		, Angle(InAngle)
	{
	}

	bool IsIdentity() const
	{
		return Translation == FVector2D(0.0, 0.0) && Scale == FVector2D(1.0, 1.0) && Shear == FVector2D(0.0, 0.0) && Angle == 0.0f;
	}

	FSlateRenderTransform ToSlateRenderTransform() const;

	bool operator==(const FWidgetTransform& Other) const
	{
		return Translation == Other.Translation && Scale == Other.Scale && Shear == Other.Shear && Angle == Other.Angle;
	}

	bool operator!=(const FWidgetTransform& Other) const
	{
		return !(*this == Other);
	}
};
