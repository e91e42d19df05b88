// Included first by every generated .gen.cpp.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/GeneratedCodeHelpers.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/ScriptMacros.h"
#include "UObject/UnrealType.h"

#include <cstddef>
