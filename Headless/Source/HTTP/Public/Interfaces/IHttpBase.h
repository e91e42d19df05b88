#pragma once

#include "CoreMinimal.h"

/** What a request and its response both carry: a URL, headers and a payload. */
class IHttpBase
{
public:
	virtual ~IHttpBase() = default;

	virtual const FString& GetURL() const = 0;

	/** The value of one query parameter of the URL, decoded as it appears; empty when absent. */
	virtual FString GetURLParameter(const FString& ParameterName) const = 0;

	/** Header names compare without regard to case; empty when the header is absent. */
	virtual FString GetHeader(const FString& HeaderName) const = 0;

	/** Every header as "Name: Value". */
	virtual TArray<FString> GetAllHeaders() const = 0;

	virtual FString GetContentType() const = 0;
	virtual uint64 GetContentLength() const = 0;
	virtual const TArray<uint8>& GetContent() const = 0;
};
