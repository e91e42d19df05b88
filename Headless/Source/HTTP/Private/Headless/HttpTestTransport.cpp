#include "Headless/HttpTestTransport.h"

#include "Containers/StringConv.h"
#include "Headless/HttpTestTransportImpl.h"

namespace
{
	FString DecodeUtf8(const TArray<uint8>& Bytes)
	{
		return FString(Bytes.Num(), reinterpret_cast<const UTF8CHAR*>(Bytes.GetData()));
	}
}

void FHttpTestTransportImpl::StartRequest(FHttpTransportRequest&& Request)
{
	FRecord& Record = Records[Records.AddDefaulted()];
	Record.Request.Verb = Request.Verb;
	Record.Request.URL = Request.URL;
	Record.Request.Headers = Request.Headers.ToStrings();
	Record.Request.Body = DecodeUtf8(Request.Content);
	Record.RequestId = Request.Id;
	Record.OnFinished = MoveTemp(Request.OnFinished);
}

void FHttpTestTransportImpl::CancelRequest(uint64 RequestId)
{
	for (FRecord& Record : Records)
	{
		if (Record.RequestId == RequestId)
		{
			Record.OnFinished = nullptr;
		}
	}
}

bool FHttpTestTransportImpl::Finish(int32 Index, FHttpTransportResult&& Result)
{
	check(Records.IsValidIndex(Index));
	FRecord& Record = Records[Index];
	if (!Record.OnFinished)
	{
		return false;
	}
	TUniqueFunction<void(FHttpTransportResult&&)> OnFinished = MoveTemp(Record.OnFinished);
	Record.OnFinished = nullptr;
	OnFinished(MoveTemp(Result));
	return true;
}

void FHttpTestTransportImpl::CancelPending()
{
	for (int32 Index = 0; Index < Records.Num(); ++Index)
	{
		FHttpTransportResult Result;
		Result.FailureReason = EHttpFailureReason::Cancelled;
		Finish(Index, MoveTemp(Result));
	}
}

FString FHttpTestTransport::FRecordedRequest::GetHeader(const FString& HeaderName) const
{
	const FString Prefix = HeaderName + TEXT(":");
	for (const FString& Header : Headers)
	{
		if (Header.StartsWith(Prefix, ESearchCase::IgnoreCase))
		{
			return Header.RightChop(Prefix.Len()).TrimStart();
		}
	}
	return FString();
}

FHttpTestTransport::FHttpTestTransport()
	: Impl(MakeShared<FHttpTestTransportImpl, ESPMode::ThreadSafe>())
{
	TSharedPtr<IHttpTransport, ESPMode::ThreadSafe>& Override = UE::Http::Private::GetTransportOverride();
	checkf(!Override.IsValid(), "Only one FHttpTestTransport may be installed at a time");
	Override = Impl;
}

FHttpTestTransport::~FHttpTestTransport()
{
	UE::Http::Private::GetTransportOverride().Reset();
	Impl->CancelPending();
}

int32 FHttpTestTransport::Num() const
{
	return Impl->Records.Num();
}

const FHttpTestTransport::FRecordedRequest& FHttpTestTransport::GetRequest(int32 Index) const
{
	check(Impl->Records.IsValidIndex(Index));
	return Impl->Records[Index].Request;
}

bool FHttpTestTransport::IsPending(int32 Index) const
{
	check(Impl->Records.IsValidIndex(Index));
	return Impl->Records[Index].OnFinished.IsSet();
}

bool FHttpTestTransport::Respond(int32 Index, int32 ResponseCode, const FString& Body, const TArray<FString>& Headers)
{
	FHttpTransportResult Result;
	Result.ResponseCode = ResponseCode;
	for (const FString& Header : Headers)
	{
		FString Name;
		FString Value;
		if (Header.Split(TEXT(":"), &Name, &Value))
		{
			Result.Headers.Append(Name.TrimStartAndEnd(), Value.TrimStartAndEnd());
		}
	}
	const FTCHARToUTF8 Utf8(*Body, Body.Len());
	Result.Content = TArray<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
	return Impl->Finish(Index, MoveTemp(Result));
}

bool FHttpTestTransport::FailWithConnectionError(int32 Index)
{
	FHttpTransportResult Result;
	Result.FailureReason = EHttpFailureReason::ConnectionError;
	return Impl->Finish(Index, MoveTemp(Result));
}
