#pragma once

#include "CoreMinimal.h"
#include "HttpHeaderList.h"
#include "Interfaces/IHttpRequest.h"
#include "Templates/Function.h"

/** How one request ended, as the transport saw it. */
struct FHttpTransportResult
{
	/** None when a reply arrived, whatever its code. */
	EHttpFailureReason FailureReason = EHttpFailureReason::None;
	int32 ResponseCode = 0;
	FHttpHeaderList Headers;
	TArray<uint8> Content;
};

/** Everything a transport needs to send one request, copied off the request object on the game thread. */
struct FHttpTransportRequest
{
	uint64 Id = 0;
	FString Verb;
	FString URL;
	FHttpHeaderList Headers;
	TArray<uint8> Content;
	/** Limits in seconds; 0 means none. */
	float TimeoutSeconds = 0.0f;
	float ConnectionTimeoutSeconds = 0.0f;
	/** Called at most once, from any thread; it only queues the result for the game thread. */
	TUniqueFunction<void(FHttpTransportResult&&)> OnFinished;
};

/** Carries requests somewhere and reports how they ended. Both calls come from the game thread. */
class IHttpTransport
{
public:
	virtual ~IHttpTransport() = default;

	virtual void StartRequest(FHttpTransportRequest&& Request) = 0;

	/** Drops the request; a result already on its way is ignored by the request. */
	virtual void CancelRequest(uint64 RequestId) = 0;
};

namespace UE::Http::Private
{
	/** The transport installed in place of the network, if any. */
	TSharedPtr<IHttpTransport, ESPMode::ThreadSafe>& GetTransportOverride();
}
