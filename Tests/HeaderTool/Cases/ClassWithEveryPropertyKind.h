#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"

#include "ClassWithEveryPropertyKind.generated.h"

class UBorder;
class UTexture2D;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FQuorvelStashLoaded);

/** A panel with one property of every kind the plugin reflects. */
UCLASS(Blueprintable, config = Game, defaultconfig, meta = (DisplayName = "Every Property"))
class QUORVELUI_API UClassWithEveryPropertyKind : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Loads on construct. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	bool bLoadOnConstruct = true;

	UPROPERTY(EditAnywhere, Category = "Tollmere|Container", meta = (ClampMin = "1", EditCondition = "Layout == EQuorvelContainerLayout::Grid", EditConditionHides))
	int32 GridWidth = 4;

	UPROPERTY(config, EditAnywhere, Category = Tollmere, meta = (ClampMin = 0.1, UIMax = -2))
	float CellSize{64.f};

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	double Scale;

	UPROPERTY(VisibleAnywhere, Category = "Tollmere")
	uint8 Flags;

	UPROPERTY(EditAnywhere, Category = "Tollmere|Identity")
	FString Provider = TEXT("anonymous");

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	FName ItemId = NAME_None;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	FText Title;

	UPROPERTY(EditAnywhere, Category = "Tollmere|Appearance")
	FLinearColor PanelColour = FLinearColor(0.1f, 0.1f, 0.1f, 1.f);

	UPROPERTY(EditAnywhere, Category = "Tollmere|Container")
	EQuorvelContainerLayout Layout = EQuorvelContainerLayout::Grid;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	TEnumAsByte<EQuorvelLegacyMode> LegacyMode;

	UPROPERTY(Instanced)
	TObjectPtr<UBorder> Root;

	UPROPERTY(Transient)
	UBorder* RawRoot = nullptr;

	UPROPERTY(Instanced)
	TArray<TObjectPtr<UWidget>> ItemWidgets;

	UPROPERTY()
	TArray<FQuorvelItemInstance> Contents;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	TSoftObjectPtr<UTexture2D> Thumbnail;

	UPROPERTY()
	TWeakObjectPtr<UObject> Owner;

	UPROPERTY()
	TLazyObjectPtr<UObject> Lazy;

	UPROPERTY(config, EditAnywhere, Category = "Items", meta = (AllowedClasses = "/Script/Engine.DataTable"))
	FSoftObjectPath ItemTablePath;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	TSubclassOf<UObject> EntryClass;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	TMap<FName, int32> Counts;

	UPROPERTY(BlueprintAssignable, Category = "Tollmere")
	FQuorvelStashLoaded OnStashLoaded;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	class UTexture2D* ForwardDeclared;
};
