// The empty widget: what an unset slot holds, so slots always have a widget.
#pragma once

#include "Templates/SharedPointer.h"

class SWidget;

class SNullWidget
{
public:
	static SLATECORE_API TSharedRef<SWidget> NullWidget;
};
