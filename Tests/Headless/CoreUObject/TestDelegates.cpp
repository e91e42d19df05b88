#include "TestDelegates.h"

void UTestListener::HandleCount(int32 Count)
{
	if (Log)
	{
		Log->Add(Tag + TEXT(":") + FString::FromInt(Count));
	}
	if (OnCount)
	{
		OnCount(this);
	}
}

void UTestListener::HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot)
{
	if (Log)
	{
		Log->Add(Tag + TEXT(":") + ItemId.ToString() + TEXT(",") + FString::FromInt(Quantity) + TEXT(",") + FString::FromInt(SourceSlot));
	}
}

void UTestListener::HandleRecord(const FTestRecord& Record)
{
	if (Log)
	{
		Log->Add(Tag + TEXT(":") + Record.Label);
	}
}
