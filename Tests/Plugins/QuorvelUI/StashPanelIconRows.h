// A row structure whose icon is a soft reference, under the member name a script-defined structure gives it.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "UObject/SoftObjectPtr.h"

#include "StashPanelIconRows.generated.h"

/** The member name a script-defined structure gives its field. */
USTRUCT()
struct FScriptStructRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TSoftObjectPtr<UTexture2D> ItemIcon_2_0123456789abcdef0123456789ABCDEF;
};
