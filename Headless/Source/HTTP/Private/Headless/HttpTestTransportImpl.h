#pragma once

#include "CoreMinimal.h"
#include "Headless/HttpTestTransport.h"
#include "HttpTransport.h"

/** The recording transport behind FHttpTestTransport. */
class FHttpTestTransportImpl : public IHttpTransport
{
public:
	struct FRecord
	{
		FHttpTestTransport::FRecordedRequest Request;
		uint64 RequestId = 0;
		/** Unset once the request no longer waits. */
		TUniqueFunction<void(FHttpTransportResult&&)> OnFinished;
	};

	virtual void StartRequest(FHttpTransportRequest&& Request) override;
	virtual void CancelRequest(uint64 RequestId) override;

	/** Ends a pending request with the given result; false when it no longer waits. */
	bool Finish(int32 Index, FHttpTransportResult&& Result);

	/** Cancels every request still waiting. */
	void CancelPending();

	TArray<FRecord> Records;
};
