// Types the reflection tests read back: a struct, an enum, a base and a derived class.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "TestReflectedTypes.generated.h"

UENUM(BlueprintType)
enum class ETestLayout : uint8
{
	Grid UMETA(DisplayName = "Grid of cells"),
	Slots,
};

/** A record with a reference inside. */
USTRUCT(BlueprintType)
struct FTestRecord
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FString Label;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FName Id;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	int32 Count = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	bool bFlag = false;

	UPROPERTY()
	TObjectPtr<UObject> Held;
};

/** The base of the test classes. */
UCLASS()
class UTestBase : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Base")
	int32 BaseValue = 7;

	UPROPERTY()
	TObjectPtr<UObject> BaseRef;
};

/** A panel-like class with every kind of member the plugin uses. */
UCLASS(meta = (DisplayName = "Test Widget"))
class UTestWidget : public UTestBase
{
	GENERATED_BODY()

public:
	/** Whether it loads itself. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test|Identity")
	bool bLoadOnConstruct = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FString Provider = TEXT("steam");

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	ETestLayout Layout = ETestLayout::Slots;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test", meta = (ClampMin = "1"))
	int32 Columns = 10;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	float CellSize = 64.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FLinearColor Tint = FLinearColor(0.25f, 0.5f, 0.75f, 1.0f);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FText Title;

	UPROPERTY(EditAnywhere, Instanced, Category = "Test")
	TObjectPtr<UTestBase> Child;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UObject>> Items;

	UPROPERTY(Transient)
	TArray<FTestRecord> Records;

	UPROPERTY()
	FTestRecord Single;

	UPROPERTY()
	UObject* RawRef = nullptr;

	UPROPERTY()
	TObjectPtr<UObject> Fixed[2];

	UPROPERTY()
	TWeakObjectPtr<UObject> Weak;

	UPROPERTY()
	TSoftObjectPtr<UObject> Soft;

	/** Adds Amount and reports the sum. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	int32 AddTo(int32 Amount, int32 Extra = -1);

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Test")
	bool Split(const FVector2D& Position, int32& OutX, int32& OutY) const;

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Deposit(FName ItemId, int32 Quantity = 1, int32 X = -1, int32 Y = -1);

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Test")
	bool Find(const FTestRecord& Key, FTestRecord& OutRecord) const;

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Take(UTestWidget* Source, ETestLayout InLayout);

	/** Raised when something arrived. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Test")
	void OnArrived(FName ItemId, int32 Quantity, int32 SourceSlot);

	UFUNCTION(BlueprintImplementableEvent, Category = "Test")
	void OnRecord(const FTestRecord& Record);

	FName LastItemId;
	int32 LastQuantity = 0;
	int32 LastX = 0;
	int32 LastY = 0;
	UTestWidget* LastSource = nullptr;
};
