#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

class FJsonObject;

/**
 * The one way to talk to the platform. Requests go through the engine's HTTP module; retries,
 * time-outs and the mapping of failures to FQuorvelError live here, so callers see exactly one
 * completion per request, on the game thread.
 */
class QUORVELCORE_API FQuorvelClient
{
public:
	/** Success flag, the reply object (set on success), the error (filled on failure). */
	using FCompletion = TFunction<void(bool, TSharedPtr<FJsonObject>, FQuorvelError)>;

	/**
	 * Sends Body (JSON text) to the platform's base URL plus Path. An empty AccessToken sends no
	 * token; an empty IdempotencyKey sends no key; every retry carries the same key.
	 *
	 * Returns at once. Completion runs exactly once, on the game thread, on a later frame: never
	 * inside Send, not even for a request the HTTP module refuses to start. Any 2xx reply is a
	 * success, with the reply's JSON object, or an empty object when the body holds none. Once the
	 * module has shut down nothing runs any more: retries still waiting are dropped unsent, with
	 * their completions.
	 */
	static void Send(const FString& Method, const FString& Path, const FString& Body, const FString& AccessToken,
		const FString& IdempotencyKey, FCompletion Completion);

	/** A fresh key on every call, so that the platform applies a retried operation once. */
	static FString NewIdempotencyKey();
};
