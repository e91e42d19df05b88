#pragma once

#include "FunctionQualifiers.generated.h"

UCLASS(Abstract)
class UFunctionQualifiers : public UObject
{
	GENERATED_BODY()

public:
	UFunctionQualifiers(const FObjectInitializer& ObjectInitializer);
	virtual ~UFunctionQualifiers() override;

	UFUNCTION(BlueprintCallable)
	virtual void Refresh() PURE_VIRTUAL(UFunctionQualifiers::Refresh, );

	UFUNCTION(BlueprintCallable)
	virtual int32 Count() const = 0;

	UFUNCTION(BlueprintCallable)
	virtual void Reset() override final;

	UFUNCTION(BlueprintCallable)
	FORCEINLINE static int32 Twice(int32 Value) noexcept { return Value * 2; }

	UFUNCTION(BlueprintPure = false, Category = "Tollmere")
	void Touch() const;

	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, BlueprintCosmetic, Exec)
	void Command();

protected:
	UFUNCTION()
	inline void Hidden() {}

private:
	UFUNCTION(CallInEditor)
	void Rebuild();
};
