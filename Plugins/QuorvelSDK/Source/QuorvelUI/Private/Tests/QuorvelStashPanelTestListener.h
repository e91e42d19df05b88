// Used only by the panel's automation tests. Reflected types cannot sit inside the tests'
// WITH_DEV_AUTOMATION_TESTS block, so this header has none.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"
#include "QuorvelStashPanel.h"
#include "UObject/Object.h"

#include "QuorvelStashPanelTestListener.generated.h"

/** Binds to a panel's delegates as a game's script would, and keeps what it heard, in order. */
UCLASS(Transient, HideDropdown)
class UQuorvelStashPanelTestListener : public UObject
{
	GENERATED_BODY()

public:
	void Listen(UQuorvelStashPanel* Panel)
	{
		Panel->OnStashLoaded.AddDynamic(this, &UQuorvelStashPanelTestListener::HandleLoaded);
		Panel->OnStashFailed.AddDynamic(this, &UQuorvelStashPanelTestListener::HandleFailed);
		Panel->OnDepositAccepted.AddDynamic(this, &UQuorvelStashPanelTestListener::HandleDeposit);
		Panel->OnWithdrawAccepted.AddDynamic(this, &UQuorvelStashPanelTestListener::HandleWithdraw);
		Panel->OnTransferAccepted.AddDynamic(this, &UQuorvelStashPanelTestListener::HandleTransfer);
	}

	UFUNCTION()
	void HandleLoaded(int32 StackCount)
	{
		Heard.Add(FString::Printf(TEXT("loaded %d"), StackCount));
	}

	UFUNCTION()
	void HandleFailed(const FQuorvelError& Error)
	{
		Errors.Add(Error);
		Heard.Add(FString::Printf(TEXT("failed %d %s %s %s"), Error.HttpStatus, *Error.Code, *Error.Message, *Error.RequestId));
	}

	UFUNCTION()
	void HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot)
	{
		Heard.Add(FString::Printf(TEXT("deposit %s %d %d"), *ItemId.ToString(), Quantity, SourceSlot));
	}

	UFUNCTION()
	void HandleWithdraw(const FQuorvelItemInstance& Instance)
	{
		Instances.Add(Instance);
		Heard.Add(FString::Printf(TEXT("withdraw %s %s %d"), *Instance.InstanceId, *Instance.ItemId.ToString(), Instance.Quantity));
	}

	UFUNCTION()
	void HandleTransfer(const FQuorvelItemInstance& Instance)
	{
		Instances.Add(Instance);
		Heard.Add(FString::Printf(TEXT("transfer %s %s %d"), *Instance.InstanceId, *Instance.ItemId.ToString(), Instance.Quantity));
	}

	/** How many lines of Heard begin with Prefix. */
	int32 Count(const TCHAR* Prefix) const
	{
		return Heard.FilterByPredicate([Prefix](const FString& Line) { return Line.StartsWith(Prefix, ESearchCase::CaseSensitive); }).Num();
	}

	TArray<FString> Heard;
	TArray<FQuorvelError> Errors;
	TArray<FQuorvelItemInstance> Instances;
};
