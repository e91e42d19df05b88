// A user widget that counts its lifecycle calls, for tests of when the engine makes them.
#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"

#include "TestUserWidget.generated.h"

UCLASS()
class UTestUserWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	int32 InitializedCount = 0;
	int32 RebuildCount = 0;
	int32 ConstructCount = 0;
	int32 DestructCount = 0;

protected:
	virtual void NativeOnInitialized() override
	{
		Super::NativeOnInitialized();
		++InitializedCount;
	}

	virtual TSharedRef<SWidget> RebuildWidget() override
	{
		++RebuildCount;
		return Super::RebuildWidget();
	}

	virtual void NativeConstruct() override
	{
		Super::NativeConstruct();
		++ConstructCount;
	}

	virtual void NativeDestruct() override
	{
		++DestructCount;
		Super::NativeDestruct();
	}
};
