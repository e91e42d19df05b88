#pragma once

#include "AccessSections.generated.h"

UCLASS()
class UPrivateByDefault : public UObject
{
	GENERATED_BODY()

	UPROPERTY()
	int32 AfterGeneratedBody;

public:
	UPROPERTY()
	int32 Public;

protected:
	UPROPERTY()
	int32 Protected;

	UFUNCTION()
	void ProtectedFunction();

private:
	UPROPERTY()
	int32 Private;
};

UCLASS()
class ULegacyBody : public UObject
{
	GENERATED_UCLASS_BODY()

	UPROPERTY()
	int32 AfterLegacyBody;
};

USTRUCT()
struct FPublicByDefault
{
	GENERATED_BODY()

	UPROPERTY()
	int32 AfterGeneratedBody;

private:
	UPROPERTY()
	int32 Private;
};
