// Types the property tests read and write: every value kind, structs inside structs, fixed arrays,
// the specifiers that become flags, and functions whose parameters cover the same kinds.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPath.h"
#include "TestReflectedTypes.h"

#include "TestPropertyTypes.generated.h"

UENUM()
enum class ETestSigned : int32
{
	Below = -5,
	Above = 1000,
};

/** A cell of a grid. */
USTRUCT()
struct FTestCell
{
	GENERATED_BODY()

	UPROPERTY()
	int32 X = 0;

	UPROPERTY()
	int32 Y = 0;
};

USTRUCT()
struct FTestPlacement
{
	GENERATED_BODY()

	UPROPERTY()
	FTestCell Cell;

	UPROPERTY()
	FTestCell Corners[2];

	UPROPERTY()
	TArray<FTestCell> Path;

	UPROPERTY()
	FName Tag;

	UPROPERTY()
	FString Note;

	UPROPERTY()
	ETestLayout Layout = ETestLayout::Grid;
};

UCLASS()
class UTestValues : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int8 Tiny = -8;

	UPROPERTY()
	int16 Small = -16;

	UPROPERTY()
	uint16 SmallUnsigned = 16;

	UPROPERTY()
	uint32 Unsigned = 32;

	UPROPERTY()
	int64 Big = -64;

	UPROPERTY()
	uint64 BigUnsigned = 64;

	UPROPERTY()
	uint8 Byte = 8;

	UPROPERTY()
	double Precise = 0.5;

	UPROPERTY()
	bool bOn = false;

	UPROPERTY()
	FText Caption;

	UPROPERTY()
	ETestSigned Signed = ETestSigned::Above;

	UPROPERTY()
	FTestPlacement Placement;

	UPROPERTY()
	int32 Counts[3];

	UPROPERTY()
	FSoftObjectPath Path;

	UPROPERTY()
	TSubclassOf<UTestBase> Kind;

	UPROPERTY()
	TObjectPtr<UTestBase> Strong;

	UPROPERTY()
	TWeakObjectPtr<UTestBase> Weak;

	UPROPERTY()
	TSoftObjectPtr<UTestBase> Soft;

	UPROPERTY()
	TArray<int32> Numbers;

	UPROPERTY()
	TArray<bool> Switches;

	UPROPERTY()
	TArray<double> Doubles;

	UPROPERTY()
	TArray<FString> Strings;

	UPROPERTY()
	TArray<FName> Names;

	UPROPERTY()
	TArray<FText> Texts;

	UPROPERTY()
	TArray<ETestLayout> Layouts;

	UPROPERTY()
	TArray<UTestBase*> RawRefs;

	UPROPERTY()
	TArray<TWeakObjectPtr<UTestBase>> Weaks;

	UPROPERTY()
	TArray<TSoftObjectPtr<UTestBase>> Softs;
};

UCLASS(Config = Game)
class UTestSpecifiers : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Shown")
	int32 Shown = 0;

	UPROPERTY(EditDefaultsOnly, Category = "Defaults")
	int32 DefaultsOnly = 0;

	UPROPERTY(EditInstanceOnly, Category = "Instance")
	int32 InstanceOnly = 0;

	UPROPERTY(Config)
	FString Configured;

	UPROPERTY(Transient)
	int32 Scratch = 0;

	UPROPERTY(EditAnywhere, Instanced, Category = "Edit")
	TArray<TObjectPtr<UTestBase>> Parts;

	UPROPERTY(EditAnywhere, Category = "Edit")
	bool bAdvanced = false;

	/**
	 * How deep to look.
	 * Only while advanced.
	 */
	UPROPERTY(EditAnywhere, Category = "Edit", meta = (EditCondition = "bAdvanced", ClampMin = "0", ClampMax = "8"))
	int32 Depth = 0;

	// A line comment describes a member too.
	UPROPERTY()
	int32 Plain = 0;

	UPROPERTY()
	int32 Old_DEPRECATED = 0;

protected:
	UPROPERTY()
	int32 Guarded = 0;

private:
	UPROPERTY()
	int32 Hidden = 0;
};

UCLASS()
class UTestCalls : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Test")
	FTestPlacement Shift(const FTestPlacement& From, int32 By) const;

	UFUNCTION(BlueprintCallable, Category = "Test")
	UTestBase* Pick(const TArray<UTestBase*>& Candidates, int32 Index);

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Fill(TArray<FString>& Out, int32 Count, bool bUpper);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static int32 Twice(int32 Value);

	UFUNCTION(BlueprintNativeEvent, Category = "Test")
	int32 Score(int32 Base);
	virtual int32 Score_Implementation(int32 Base);

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Mixed(uint8 Small, FName Tag, double Scale, bool bOn, ETestLayout Layout, int64 Big);

	uint8 LastSmall = 0;
	FName LastTag;
	double LastScale = 0.0;
	bool bLastOn = false;
	ETestLayout LastLayout = ETestLayout::Grid;
	int64 LastBig = 0;
};
