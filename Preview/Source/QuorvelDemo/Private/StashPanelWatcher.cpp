#include "StashPanelWatcher.h"

#include "QuorvelStashPanel.h"

namespace StashPanelWatcher
{
	constexpr int32 KeptLines = 200;
}

void UDemoNotificationLog::Add(const FString& Line)
{
	++Total;
	Lines.Add(FString::Printf(TEXT("%d  %s"), Total, *Line));
	if (Lines.Num() > StashPanelWatcher::KeptLines)
	{
		Lines.RemoveAt(0, Lines.Num() - StashPanelWatcher::KeptLines);
	}
}

TArray<FString> UDemoNotificationLog::Latest(int32 MaxLines) const
{
	const int32 First = FMath::Max(Lines.Num() - MaxLines, 0);
	TArray<FString> Result;
	for (int32 Index = First; Index < Lines.Num(); ++Index)
	{
		Result.Add(Lines[Index]);
	}
	return Result;
}

void UStashPanelWatcher::Watch(UQuorvelStashPanel* Panel, const FString& InName, UDemoNotificationLog* InLog)
{
	Name = InName;
	Log = InLog;
	Panel->OnStashLoaded.AddUniqueDynamic(this, &UStashPanelWatcher::HandleLoaded);
	Panel->OnStashFailed.AddUniqueDynamic(this, &UStashPanelWatcher::HandleFailed);
	Panel->OnDepositAccepted.AddUniqueDynamic(this, &UStashPanelWatcher::HandleDeposit);
	Panel->OnWithdrawAccepted.AddUniqueDynamic(this, &UStashPanelWatcher::HandleWithdraw);
	Panel->OnTransferAccepted.AddUniqueDynamic(this, &UStashPanelWatcher::HandleTransfer);
}

void UStashPanelWatcher::HandleLoaded(int32 StackCount)
{
	++Loads;
	LastStackCount = StackCount;
	Write(FString::Printf(TEXT("OnStashLoaded(%d)"), StackCount));
}

void UStashPanelWatcher::HandleFailed(const FQuorvelError& Error)
{
	++Failures;
	LastError = Error;
	Write(FString::Printf(TEXT("OnStashFailed(%d %s: %s)"), Error.HttpStatus, *Error.Code, *Error.Message));
}

void UStashPanelWatcher::HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot)
{
	++Accepted;
	Write(FString::Printf(TEXT("OnDepositAccepted(%s, %d, slot %d)"), *ItemId.ToString(), Quantity, SourceSlot));
}

void UStashPanelWatcher::HandleWithdraw(const FQuorvelItemInstance& Instance)
{
	++Accepted;
	Write(FString::Printf(TEXT("OnWithdrawAccepted(%s x%d)"), *Instance.ItemId.ToString(), Instance.Quantity));
}

void UStashPanelWatcher::HandleTransfer(const FQuorvelItemInstance& Instance)
{
	++Accepted;
	Write(FString::Printf(TEXT("OnTransferAccepted(%s x%d)"), *Instance.ItemId.ToString(), Instance.Quantity));
}

void UStashPanelWatcher::Write(const FString& Line)
{
	if (Log)
	{
		Log->Add(Name + TEXT(": ") + Line);
	}
}
