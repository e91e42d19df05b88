#include "HttpHeaderList.h"

void FHttpHeaderList::Set(const FString& Name, const FString& Value)
{
	if (FHeader* Existing = FindHeader(Name))
	{
		Existing->Value = Value;
		return;
	}
	Headers.Add(FHeader{Name, Value});
}

void FHttpHeaderList::Append(const FString& Name, const FString& Value)
{
	FHeader* Existing = FindHeader(Name);
	if (Existing == nullptr || Existing->Value.IsEmpty())
	{
		Set(Name, Value);
		return;
	}
	Existing->Value += TEXT(", ");
	Existing->Value += Value;
}

FString FHttpHeaderList::Find(const FString& Name) const
{
	for (const FHeader& Header : Headers)
	{
		if (Header.Name.Equals(Name, ESearchCase::IgnoreCase))
		{
			return Header.Value;
		}
	}
	return FString();
}

TArray<FString> FHttpHeaderList::ToStrings() const
{
	TArray<FString> Result;
	for (const FHeader& Header : Headers)
	{
		Result.Add(Header.Name + TEXT(": ") + Header.Value);
	}
	return Result;
}

FHttpHeaderList::FHeader* FHttpHeaderList::FindHeader(const FString& Name)
{
	for (FHeader& Header : Headers)
	{
		if (Header.Name.Equals(Name, ESearchCase::IgnoreCase))
		{
			return &Header;
		}
	}
	return nullptr;
}
