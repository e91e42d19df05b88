#pragma once

#include "Templates/SharedPointer.h"

class FCulture;

typedef TSharedPtr<const FCulture, ESPMode::ThreadSafe> FCulturePtr;
typedef TSharedRef<const FCulture, ESPMode::ThreadSafe> FCultureRef;
