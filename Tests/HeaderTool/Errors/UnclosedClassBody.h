#pragma once

UCLASS()
class UUnclosed : public UObject
{
	GENERATED_BODY()

	void Body()
	{
		const char* Text = "}";
	}
