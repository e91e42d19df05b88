#pragma once

#include "CoreMinimal.h"

QUORVELCORE_API DECLARE_LOG_CATEGORY_EXTERN(LogQuorvel, Log, All);
