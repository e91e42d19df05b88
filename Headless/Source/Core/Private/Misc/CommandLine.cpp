#include "Misc/CommandLine.h"

#include "Containers/UnrealString.h"

namespace
{
	struct FCommandLineState
	{
		FString Text;
		bool bInitialized = false;
	};

	FCommandLineState& GetState()
	{
		static FCommandLineState State;
		return State;
	}
}

const TCHAR* FCommandLine::Get()
{
	return *GetState().Text;
}

bool FCommandLine::Set(const TCHAR* NewCommandLine)
{
	FCommandLineState& State = GetState();
	State.Text = NewCommandLine ? NewCommandLine : TEXT("");
	State.bInitialized = true;
	return true;
}

void FCommandLine::Append(const TCHAR* AppendString)
{
	GetState().Text += AppendString;
}

bool FCommandLine::IsInitialized()
{
	return GetState().bInitialized;
}
