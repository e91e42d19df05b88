#include "StashPanelWatcher.h"

void UStashPanelWatcher::HandleLoaded(int32 StackCount)
{
	++Loads;
	LastStackCount = StackCount;
}

void UStashPanelWatcher::HandleFailed(const FQuorvelError& Error)
{
	++Failures;
	LastError = Error.Message.IsEmpty() ? Error.Code : Error.Message;
}
