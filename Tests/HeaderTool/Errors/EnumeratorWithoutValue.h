#pragma once

UENUM()
enum class EEnumeratorWithoutValue : uint8
{
	First = ,
	Second
};
