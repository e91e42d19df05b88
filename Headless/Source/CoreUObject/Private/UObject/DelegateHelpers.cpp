#include "UObject/ScriptDelegateMacros.h"

namespace UE::Delegates::Private
{
	FName GetTrimmedMemberFunctionName(const TCHAR* InMacroFunctionName)
	{
		check(InMacroFunctionName != nullptr);
		const TCHAR* Start = InMacroFunctionName;
		for (const TCHAR* Char = InMacroFunctionName; *Char; ++Char)
		{
			if (*Char == u':')
			{
				Start = Char + 1;
			}
		}
		while (*Start == u'&' || *Start == u' ')
		{
			++Start;
		}
		return FName(Start);
	}
}
