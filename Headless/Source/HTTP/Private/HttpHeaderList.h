#pragma once

#include "CoreMinimal.h"

/** Headers in the order they were first set; names compare without regard to case, as HTTP wants. */
class FHttpHeaderList
{
public:
	struct FHeader
	{
		FString Name;
		FString Value;
	};

	void Set(const FString& Name, const FString& Value);

	/** Joins repeated headers into one comma-separated value, as HTTP allows. */
	void Append(const FString& Name, const FString& Value);

	/** Empty when absent. */
	FString Find(const FString& Name) const;

	/** Each header as "Name: Value". */
	TArray<FString> ToStrings() const;

	const TArray<FHeader>& GetHeaders() const
	{
		return Headers;
	}

private:
	FHeader* FindHeader(const FString& Name);

	TArray<FHeader> Headers;
};
