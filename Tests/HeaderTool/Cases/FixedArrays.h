#pragma once

#include "FixedArrays.generated.h"

UENUM()
enum class EIconSize : uint8
{
	Small,
	Large,
	Count
};

USTRUCT()
struct FFixedArrays
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	TObjectPtr<UTexture2D> Icons[2];

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	int32 Sizes[(int32)EIconSize::Count];

	UPROPERTY(EditAnywhere, Category = "Tollmere", EditFixedSize)
	float Weights[3] = {1.f, 2.f, 3.f};
};
