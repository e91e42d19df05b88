#pragma once

#include "CoreMinimal.h"

namespace EHttpRequestStatus
{
	enum Type
	{
		/** Created, not processed yet. */
		NotStarted,
		/** Handed to the module; the completion has not run yet. */
		Processing,
		/** Finished without a reply: see the failure reason. */
		Failed,
		/** A reply arrived, whatever its response code. */
		Succeeded
	};

	inline const TCHAR* ToString(const EHttpRequestStatus::Type EnumVal)
	{
		switch (EnumVal)
		{
		case NotStarted:
			return TEXT("NotStarted");
		case Processing:
			return TEXT("Processing");
		case Failed:
			return TEXT("Failed");
		case Succeeded:
			return TEXT("Succeeded");
		}
		return TEXT("");
	}

	inline bool IsFinished(const EHttpRequestStatus::Type Status)
	{
		return Status == Failed || Status == Succeeded;
	}
}

enum class EHttpFailureReason : uint8
{
	None,
	ConnectionError,
	Cancelled,
	TimedOut,
	Other
};

inline const TCHAR* LexToString(const EHttpFailureReason Reason)
{
	switch (Reason)
	{
	case EHttpFailureReason::None:
		return TEXT("None");
	case EHttpFailureReason::ConnectionError:
		return TEXT("ConnectionError");
	case EHttpFailureReason::Cancelled:
		return TEXT("Cancelled");
	case EHttpFailureReason::TimedOut:
		return TEXT("TimedOut");
	case EHttpFailureReason::Other:
		return TEXT("Other");
	}
	return TEXT("");
}

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

	/** Where the request stands; a response reports the request it answers, which succeeded. */
	virtual EHttpRequestStatus::Type GetStatus() const = 0;
	/** Why the request failed; None unless it did. */
	virtual EHttpFailureReason GetFailureReason() const = 0;
};
