#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"

#include "SizeBox.generated.h"

/** Gives its content an explicit width and height. */
UCLASS()
class UMG_API USizeBox : public UContentWidget
{
	GENERATED_BODY()
};
