#pragma once

namespace Quorvel
{
	UPROPERTY()
	int32 Loose;
}
