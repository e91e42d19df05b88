#include "QuorvelClient.h"

#include "QuorvelClientLifetime.h"
#include "Containers/Map.h"
#include "Containers/Ticker.h"
#include "Dom/JsonObject.h"
#include "HttpModule.h"
#include "Interfaces/IHttpRequest.h"
#include "Interfaces/IHttpResponse.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/Guid.h"
#include "QuorvelLog.h"
#include "QuorvelSettings.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

namespace UE::Quorvel::Private
{
	/** One Send across all its attempts. The settings are read once, so every attempt follows the same rules. */
	struct FPendingRequest
	{
		FString Verb;
		FString Path;
		FString Url;
		FString Body;
		FString AccessToken;
		FString IdempotencyKey;
		FQuorvelClient::FCompletion Completion;

		float TimeoutSeconds = 0.0f;
		int32 MaxRetries = 0;
		float RetryBaseDelaySeconds = 0.0f;
		float RetryMaxDelaySeconds = 0.0f;
		int32 RetriesDone = 0;
		/** Set while ProcessRequest runs: an attempt that ends inside it must not finish inside Send. */
		bool bStartingAttempt = false;
	};

	using FPendingRequestRef = TSharedRef<FPendingRequest, ESPMode::ThreadSafe>;

	/** What one attempt came to. */
	struct FAttemptOutcome
	{
		bool bSuccess = false;
		TSharedPtr<FJsonObject> Reply;
		FQuorvelError Error;
		/** The wait the platform asked for with Retry-After; negative when it asked for none. */
		float RetryAfterSeconds = -1.0f;
	};

	void StartAttempt(const FPendingRequestRef& Pending);

	/**
	 * Work waiting on the core ticker for one request (a retry, or an outcome held back to the next
	 * frame), by an id of its own, so that the module can take all of it back when it shuts down.
	 */
	TMap<uint64, FTSTicker::FDelegateHandle> ScheduledWork;
	uint64 LastScheduledId = 0;
	/** Cleared at module shutdown: nothing is sent or completed after that. */
	bool bClientRunning = true;

	void Schedule(const float DelaySeconds, TFunction<void()> Work)
	{
		const uint64 Id = ++LastScheduledId;
		const FTSTicker::FDelegateHandle Handle = FTSTicker::GetCoreTicker().AddTicker(TEXT("QuorvelClient"), DelaySeconds, [Id, Work = MoveTemp(Work)](float)
		{
			ScheduledWork.Remove(Id);
			Work();
			return false;
		});
		ScheduledWork.Add(Id, Handle);
	}

	void StartClient()
	{
		bClientRunning = true;
	}

	void ShutDownClient()
	{
		bClientRunning = false;
		// The tickers' functions hold the requests and their completions; removing them releases both
		// unsent and uncalled: at shutdown nobody is left to act on an outcome.
		for (const TPair<uint64, FTSTicker::FDelegateHandle>& Entry : ScheduledWork)
		{
			FTSTicker::RemoveTicker(Entry.Value);
		}
		ScheduledWork.Empty();
	}

	TSharedPtr<FJsonObject> ParseObject(const FString& Text)
	{
		TSharedPtr<FJsonObject> Object;
		if (!FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object))
		{
			return nullptr;
		}
		return Object;
	}

	/** Only the delay-seconds form; a date is ignored and the usual backoff applies. */
	float ParseRetryAfter(const FString& HeaderValue)
	{
		const FString Value = HeaderValue.TrimStartAndEnd();
		if (Value.IsEmpty())
		{
			return -1.0f;
		}
		for (const TCHAR Character : Value)
		{
			if (!FChar::IsDigit(Character))
			{
				return -1.0f;
			}
		}
		return static_cast<float>(FCString::Atoi(*Value));
	}

	/** The statuses that say "not now" rather than "not this request". */
	bool IsRetryableStatus(const int32 Status)
	{
		return Status == EHttpResponseCodes::TooManyRequests
			|| Status == EHttpResponseCodes::BadGateway
			|| Status == EHttpResponseCodes::ServiceUnavail
			|| Status == EHttpResponseCodes::GatewayTimeout;
	}

	void SetClientError(FQuorvelError& Error, const TCHAR* Code, const FString& Message, const bool bRetryable)
	{
		Error.Code = Code;
		Error.Message = Message;
		Error.bRetryable = bRetryable;
	}

	FAttemptOutcome ReadNoReply(const EHttpFailureReason Reason)
	{
		FAttemptOutcome Outcome;
		switch (Reason)
		{
		case EHttpFailureReason::ConnectionError:
			SetClientError(Outcome.Error, TEXT("connection_failed"), TEXT("Could not connect to the platform."), true);
			break;
		case EHttpFailureReason::TimedOut:
			SetClientError(Outcome.Error, TEXT("timeout"), TEXT("The platform did not answer in time."), true);
			break;
		case EHttpFailureReason::Cancelled:
			SetClientError(Outcome.Error, TEXT("cancelled"), TEXT("The request was cancelled."), false);
			break;
		default:
			SetClientError(Outcome.Error, TEXT("request_failed"), TEXT("The request could not be sent."), false);
			break;
		}
		return Outcome;
	}

	FAttemptOutcome ReadReply(const IHttpResponse& Response)
	{
		FAttemptOutcome Outcome;
		const int32 Status = Response.GetResponseCode();
		TSharedPtr<FJsonObject> Object = ParseObject(Response.GetContentAsString());
		Outcome.Error.HttpStatus = Status;
		Outcome.Error.RequestId = Response.GetHeader(TEXT("X-Request-Id"));

		// Any 2xx means the platform acted, whatever the body: reporting a failure then would hide an
		// operation that took place (a consume whose stack the game never hears of).
		if (Status >= 200 && Status <= 299)
		{
			Outcome.bSuccess = true;
			Outcome.Reply = Object.IsValid() ? MoveTemp(Object) : MakeShared<FJsonObject>();
			Outcome.Error = FQuorvelError();
			return Outcome;
		}

		Outcome.Error.bRetryable = IsRetryableStatus(Status);
		Outcome.RetryAfterSeconds = ParseRetryAfter(Response.GetHeader(TEXT("Retry-After")));
		const TSharedPtr<FJsonObject>* ErrorObject = nullptr;
		if (Object.IsValid() && Object->TryGetObjectField(TEXT("error"), ErrorObject))
		{
			(*ErrorObject)->TryGetStringField(TEXT("code"), Outcome.Error.Code);
			(*ErrorObject)->TryGetStringField(TEXT("message"), Outcome.Error.Message);
		}
		// A proxy or a crashed server answers without the platform's error record.
		if (Outcome.Error.Code.IsEmpty() && Outcome.Error.Message.IsEmpty())
		{
			Outcome.Error.Code = TEXT("http_error");
			Outcome.Error.Message = FString::Printf(TEXT("The platform answered with HTTP status %d."), Status);
		}
		return Outcome;
	}

	/** Exponential backoff with jitter, at least what the platform asked for; negative to give up. */
	float RetryDelay(const FPendingRequest& Pending, const float RetryAfterSeconds)
	{
		// The platform asks for more patience than the project grants: report the failure now.
		if (RetryAfterSeconds > Pending.RetryMaxDelaySeconds)
		{
			return -1.0f;
		}
		const int32 Exponent = FMath::Min(Pending.RetriesDone, 30);
		const float Backoff = FMath::Min(Pending.RetryBaseDelaySeconds * static_cast<float>(1 << Exponent), Pending.RetryMaxDelaySeconds);
		// Never below half the backoff, so that clients that failed together still spread out.
		const float Jittered = Backoff * FMath::FRandRange(0.5f, 1.0f);
		return FMath::Max(Jittered, RetryAfterSeconds);
	}

	void Finish(const FPendingRequestRef& Pending, FAttemptOutcome&& Outcome)
	{
		// Moved out first, so that nothing the completion does can reach it a second time.
		FQuorvelClient::FCompletion Completion = MoveTemp(Pending->Completion);
		Pending->Completion = nullptr;
		if (Completion)
		{
			Completion(Outcome.bSuccess, MoveTemp(Outcome.Reply), MoveTemp(Outcome.Error));
		}
	}

	/** Retries what a retry can help while retries remain; otherwise the outcome is final. */
	void Settle(const FPendingRequestRef& Pending, FAttemptOutcome&& Outcome)
	{
		if (!Outcome.bSuccess && Outcome.Error.bRetryable && Pending->RetriesDone < Pending->MaxRetries)
		{
			const float Delay = RetryDelay(*Pending, Outcome.RetryAfterSeconds);
			if (Delay >= 0.0f)
			{
				++Pending->RetriesDone;
				UE_LOG(LogQuorvelClient, Verbose, TEXT("%s %s failed with %s (HTTP %d); retry %d of %d in %.2f s"),
					*Pending->Verb, *Pending->Path, *Outcome.Error.Code, Outcome.Error.HttpStatus, Pending->RetriesDone, Pending->MaxRetries, Delay);
				// Scheduled on the core ticker rather than waited for, so the game thread keeps running.
				Schedule(Delay, [Pending]()
				{
					StartAttempt(Pending);
				});
				return;
			}
		}
		Finish(Pending, MoveTemp(Outcome));
	}

	void OnAttemptComplete(const FPendingRequestRef& Pending, const FHttpRequestPtr& Request, const FHttpResponsePtr& Response, const bool bConnectedSuccessfully)
	{
		if (!bClientRunning)
		{
			// The module has shut down while this attempt was out: its outcome can no longer matter.
			return;
		}
		FAttemptOutcome Outcome = bConnectedSuccessfully && Response.IsValid()
			? ReadReply(*Response)
			: ReadNoReply(Request.IsValid() ? Request->GetFailureReason() : EHttpFailureReason::Other);

		if (Pending->bStartingAttempt)
		{
			// The HTTP module ends a request that cannot start inside ProcessRequest; Send's caller
			// still hears of it only later, on a frame of its own.
			Schedule(0.0f, [Pending, Outcome = MoveTemp(Outcome)]() mutable
			{
				Settle(Pending, MoveTemp(Outcome));
			});
			return;
		}
		Settle(Pending, MoveTemp(Outcome));
	}

	void StartAttempt(const FPendingRequestRef& Pending)
	{
		const FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
		Request->SetVerb(Pending->Verb);
		Request->SetURL(Pending->Url);
		Request->SetHeader(TEXT("Content-Type"), TEXT("application/json"));
		Request->SetHeader(TEXT("Accept"), TEXT("application/json"));
		if (!Pending->AccessToken.IsEmpty())
		{
			Request->SetHeader(TEXT("Authorization"), TEXT("Bearer ") + Pending->AccessToken);
		}
		// Every attempt carries the same key, so the platform applies the operation once.
		if (!Pending->IdempotencyKey.IsEmpty())
		{
			Request->SetHeader(TEXT("Idempotency-Key"), Pending->IdempotencyKey);
		}
		Request->SetContentAsString(Pending->Body);
		if (Pending->TimeoutSeconds > 0.0f)
		{
			Request->SetTimeout(Pending->TimeoutSeconds);
		}
		Request->OnProcessRequestComplete().BindLambda([Pending](FHttpRequestPtr CompletedRequest, FHttpResponsePtr Response, bool bConnectedSuccessfully)
		{
			OnAttemptComplete(Pending, CompletedRequest, Response, bConnectedSuccessfully);
		});
		Pending->bStartingAttempt = true;
		Request->ProcessRequest();
		Pending->bStartingAttempt = false;
	}
}

void FQuorvelClient::Send(const FString& Method, const FString& Path, const FString& Body, const FString& AccessToken,
	const FString& IdempotencyKey, FCompletion Completion)
{
	using namespace UE::Quorvel::Private;

	if (!bClientRunning)
	{
		return;
	}
	const UQuorvelSettings& Settings = UQuorvelSettings::Get();
	const FPendingRequestRef Pending = MakeShared<FPendingRequest, ESPMode::ThreadSafe>();
	Pending->Verb = Method;
	Pending->Path = Path;
	Pending->Url = Settings.BaseUrl + Path;
	Pending->Body = Body;
	Pending->AccessToken = AccessToken;
	Pending->IdempotencyKey = IdempotencyKey;
	Pending->Completion = MoveTemp(Completion);
	Pending->TimeoutSeconds = Settings.RequestTimeoutSeconds;
	Pending->MaxRetries = FMath::Max(Settings.MaxRetries, 0);
	Pending->RetryBaseDelaySeconds = FMath::Max(Settings.RetryBaseDelaySeconds, 0.0f);
	Pending->RetryMaxDelaySeconds = FMath::Max(Settings.RetryMaxDelaySeconds, 0.0f);
	StartAttempt(Pending);
}

FString FQuorvelClient::NewIdempotencyKey()
{
	return FGuid::NewGuid().ToString(EGuidFormats::DigitsWithHyphensLower);
}
