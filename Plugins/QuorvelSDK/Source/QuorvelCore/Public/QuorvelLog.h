#pragma once

#include "CoreMinimal.h"

/** What the stash panel reports to a person reading the log: loads, layout mismatches, refused calls. */
QUORVELCORE_API DECLARE_LOG_CATEGORY_EXTERN(LogQuorvel, Log, All);

/** The platform client's transport diagnostics (retries and their reasons); Verbose to see them. */
QUORVELCORE_API DECLARE_LOG_CATEGORY_EXTERN(LogQuorvelClient, Log, All);
