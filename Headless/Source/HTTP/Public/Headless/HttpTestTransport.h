// Headless only: nothing in the engine corresponds to this file. Plugin code never includes it.
#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FHttpTestTransportImpl;

/**
 * Stands in for the network while it exists: requests processed meanwhile are recorded in order
 * and wait until the test answers them. An answer completes its request at the next HTTP manager
 * tick, as a real reply would. Destroying the transport brings the network back and cancels the
 * requests it never answered. Game thread only; one at a time.
 */
class FHttpTestTransport
{
public:
	struct FRecordedRequest
	{
		FString Verb;
		FString URL;
		/** Each as "Name: Value", in the order they were set. */
		TArray<FString> Headers;
		/** The content decoded from UTF-8. */
		FString Body;

		/** Case-blind, as HTTP header names are; empty when absent. */
		FString GetHeader(const FString& HeaderName) const;
	};

	FHttpTestTransport();
	~FHttpTestTransport();

	FHttpTestTransport(const FHttpTestTransport&) = delete;
	FHttpTestTransport& operator=(const FHttpTestTransport&) = delete;

	/** How many requests were processed since the transport was installed. */
	int32 Num() const;

	/** Valid until the next request is processed. */
	const FRecordedRequest& GetRequest(int32 Index) const;

	/** Whether the request still waits for an answer: not answered, failed, cancelled or timed out. */
	bool IsPending(int32 Index) const;

	/** Answers a pending request; Headers are "Name: Value". False when it no longer waits. */
	bool Respond(int32 Index, int32 ResponseCode, const FString& Body, const TArray<FString>& Headers = TArray<FString>());

	/** Ends a pending request as if the server could not be reached. False when it no longer waits. */
	bool FailWithConnectionError(int32 Index);

private:
	TSharedRef<FHttpTestTransportImpl, ESPMode::ThreadSafe> Impl;
};
