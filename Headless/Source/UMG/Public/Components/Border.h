#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"

#include "Border.generated.h"

/** A content widget drawn over a brush, with padding around its content. */
UCLASS()
class UMG_API UBorder : public UContentWidget
{
	GENERATED_BODY()
};
