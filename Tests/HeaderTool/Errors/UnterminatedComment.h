#pragma once

/** Never closed.
UCLASS()
class UUnterminated : public UObject
{
	GENERATED_BODY()
};
