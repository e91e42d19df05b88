#include "HttpUrl.h"

namespace UE::Http::Private
{
	bool IsSupportedUrl(const FString& URL)
	{
		FString Rest;
		if (URL.StartsWith(TEXT("http://")))
		{
			Rest = URL.RightChop(7);
		}
		else if (URL.StartsWith(TEXT("https://")))
		{
			Rest = URL.RightChop(8);
		}
		else if (!URL.Contains(TEXT("://")))
		{
			// No scheme at all: curl takes it for http, as it does in the engine.
			Rest = URL;
		}
		else
		{
			return false;
		}
		if (Rest.IsEmpty() || Rest[0] == TEXT('/') || Rest[0] == TEXT('?') || Rest[0] == TEXT('#'))
		{
			return false;
		}
		for (const TCHAR Character : Rest)
		{
			if (Character <= TEXT(' '))
			{
				return false;
			}
		}
		return true;
	}

	FString FindUrlParameter(const FString& URL, const FString& ParameterName)
	{
		FString Query;
		if (!URL.Split(TEXT("?"), nullptr, &Query))
		{
			return FString();
		}
		int32 FragmentStart = INDEX_NONE;
		if (Query.FindChar(TEXT('#'), FragmentStart))
		{
			Query.LeftInline(FragmentStart);
		}
		TArray<FString> Pairs;
		Query.ParseIntoArray(Pairs, TEXT("&"));
		for (const FString& Pair : Pairs)
		{
			FString Name;
			FString Value;
			if (!Pair.Split(TEXT("="), &Name, &Value))
			{
				Name = Pair;
			}
			if (Name == ParameterName)
			{
				return Value;
			}
		}
		return FString();
	}
}
