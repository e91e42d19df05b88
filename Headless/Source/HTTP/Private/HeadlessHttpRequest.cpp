#include "HeadlessHttpRequest.h"

#include "Containers/StringConv.h"
#include "HeadlessHttpResponse.h"
#include "HttpGameThreadQueue.h"
#include "HttpLog.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "HttpUrl.h"

namespace
{
	uint64 LastTransportRequestId = 0;
}

FHeadlessHttpRequest::~FHeadlessHttpRequest()
{
	// Only the manager's own teardown can leave a request in progress here; it abandons them first.
	check(Status != EHttpRequestStatus::Processing);
}

const FString& FHeadlessHttpRequest::GetURL() const
{
	return URL;
}

FString FHeadlessHttpRequest::GetURLParameter(const FString& ParameterName) const
{
	return UE::Http::Private::FindUrlParameter(URL, ParameterName);
}

FString FHeadlessHttpRequest::GetHeader(const FString& HeaderName) const
{
	return Headers.Find(HeaderName);
}

TArray<FString> FHeadlessHttpRequest::GetAllHeaders() const
{
	return Headers.ToStrings();
}

FString FHeadlessHttpRequest::GetContentType() const
{
	return GetHeader(TEXT("Content-Type"));
}

uint64 FHeadlessHttpRequest::GetContentLength() const
{
	return static_cast<uint64>(Content.Num());
}

const TArray<uint8>& FHeadlessHttpRequest::GetContent() const
{
	return Content;
}

FString FHeadlessHttpRequest::GetVerb() const
{
	return Verb.IsEmpty() ? FString(TEXT("GET")) : Verb;
}

void FHeadlessHttpRequest::SetVerb(const FString& InVerb)
{
	if (CanModify())
	{
		Verb = InVerb.ToUpper();
	}
}

void FHeadlessHttpRequest::SetURL(const FString& InURL)
{
	if (CanModify())
	{
		URL = InURL;
	}
}

void FHeadlessHttpRequest::SetContent(const TArray<uint8>& ContentPayload)
{
	if (CanModify())
	{
		Content = ContentPayload;
	}
}

void FHeadlessHttpRequest::SetContent(TArray<uint8>&& ContentPayload)
{
	if (CanModify())
	{
		Content = MoveTemp(ContentPayload);
	}
}

void FHeadlessHttpRequest::SetContentAsString(const FString& ContentString)
{
	if (CanModify())
	{
		const FTCHARToUTF8 Utf8(*ContentString, ContentString.Len());
		Content = TArray<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
	}
}

void FHeadlessHttpRequest::SetHeader(const FString& HeaderName, const FString& HeaderValue)
{
	if (CanModify())
	{
		Headers.Set(HeaderName, HeaderValue);
	}
}

void FHeadlessHttpRequest::AppendToHeader(const FString& HeaderName, const FString& AdditionalHeaderValue)
{
	if (CanModify())
	{
		Headers.Append(HeaderName, AdditionalHeaderValue);
	}
}

bool FHeadlessHttpRequest::ProcessRequest()
{
	if (Status == EHttpRequestStatus::Processing)
	{
		UE_LOG(LogHttp, Warning, TEXT("ProcessRequest failed: the request to '%s' is already in progress"), *URL);
		return false;
	}

	BeginProcessing();
	TransportRequestId = ++LastTransportRequestId;
	ScheduledFailure.Reset();

	// As the engine does, a request that cannot start never reaches the manager: it completes, as
	// failed, before ProcessRequest returns.
	if (!UE::Http::Private::IsSupportedUrl(URL))
	{
		UE_LOG(LogHttp, Warning, TEXT("ProcessRequest failed: '%s' is not an http or https URL"), *URL);
		Finish(EHttpFailureReason::Other, nullptr);
		return false;
	}

	FHttpManager& HttpManager = FHttpModule::Get().GetHttpManager();
	Manager = &HttpManager;
	HttpManager.AddRequest(SharedThis(this));
	Transport = HttpManager.GetActiveTransport().ToSharedPtr();
	Transport->StartRequest(MakeTransportRequest());
	return true;
}

void FHeadlessHttpRequest::CancelRequest()
{
	if (Status != EHttpRequestStatus::Processing || ScheduledFailure.IsSet())
	{
		return;
	}
	if (Transport.IsValid())
	{
		Transport->CancelRequest(TransportRequestId);
	}
	ScheduleFailure(EHttpFailureReason::Cancelled);
}

void FHeadlessHttpRequest::Tick(float DeltaSeconds)
{
	if (!ScheduledFailure.IsSet() && HasTimedOut())
	{
		if (Transport.IsValid())
		{
			Transport->CancelRequest(TransportRequestId);
		}
		Finish(EHttpFailureReason::TimedOut, nullptr);
	}
}

void FHeadlessHttpRequest::Abandon()
{
	if (Status != EHttpRequestStatus::Processing)
	{
		return;
	}
	if (Transport.IsValid())
	{
		Transport->CancelRequest(TransportRequestId);
	}
	SetFinished(EHttpFailureReason::Cancelled, nullptr);
	Transport.Reset();
	Manager = nullptr;
}

bool FHeadlessHttpRequest::CanModify() const
{
	if (Status == EHttpRequestStatus::Processing)
	{
		UE_LOG(LogHttp, Warning, TEXT("Ignored a change to the request to '%s': it is in progress"), *URL);
		return false;
	}
	return true;
}

FHttpTransportRequest FHeadlessHttpRequest::MakeTransportRequest()
{
	FHttpTransportRequest Request;
	Request.Id = TransportRequestId;
	Request.Verb = GetVerb();
	Request.URL = URL;
	Request.Headers = Headers;
	Request.Content = Content;
	Request.TimeoutSeconds = GetTimeoutOrDefault();
	Request.ConnectionTimeoutSeconds = FHttpModule::Get().GetHttpConnectionTimeout();

	// The transport holds only a weak reference: the request must never be destroyed off the game thread.
	TWeakPtr<FHeadlessHttpRequest, ESPMode::ThreadSafe> WeakThis = SharedThis(this);
	const uint64 Id = TransportRequestId;
	Request.OnFinished = [Queue = Manager->GameThreadTasks, WeakThis, Id](FHttpTransportResult&& Result) mutable
	{
		Queue->Add([WeakThis, Id, Result = MoveTemp(Result)]() mutable
		{
			if (TSharedPtr<FHeadlessHttpRequest, ESPMode::ThreadSafe> Request = WeakThis.Pin())
			{
				Request->OnTransportFinished(Id, MoveTemp(Result));
			}
		});
	};
	return Request;
}

void FHeadlessHttpRequest::ScheduleFailure(EHttpFailureReason Reason)
{
	check(Manager != nullptr);
	ScheduledFailure = Reason;
	TWeakPtr<FHeadlessHttpRequest, ESPMode::ThreadSafe> WeakThis = SharedThis(this);
	const uint64 Id = TransportRequestId;
	Manager->AddGameThreadTask([WeakThis, Id]()
	{
		TSharedPtr<FHeadlessHttpRequest, ESPMode::ThreadSafe> Request = WeakThis.Pin();
		if (Request.IsValid() && Request->TransportRequestId == Id && Request->ScheduledFailure.IsSet())
		{
			Request->Finish(Request->ScheduledFailure.GetValue(), nullptr);
		}
	});
}

void FHeadlessHttpRequest::OnTransportFinished(uint64 InTransportRequestId, FHttpTransportResult&& Result)
{
	// A scheduled failure outranks whatever the transport managed to deliver meanwhile.
	if (InTransportRequestId != TransportRequestId || ScheduledFailure.IsSet())
	{
		return;
	}
	if (Result.FailureReason != EHttpFailureReason::None)
	{
		Finish(Result.FailureReason, nullptr);
		return;
	}
	Finish(EHttpFailureReason::None, MakeShared<FHeadlessHttpResponse, ESPMode::ThreadSafe>(URL, MoveTemp(Result)));
}

void FHeadlessHttpRequest::Finish(EHttpFailureReason Reason, const FHttpResponsePtr& InResponse)
{
	if (Status != EHttpRequestStatus::Processing)
	{
		return;
	}
	// The manager may hold the last reference; keep the request alive through its completion.
	const FHttpRequestRef Self = AsShared();
	SetFinished(Reason, InResponse);
	Transport.Reset();
	ScheduledFailure.Reset();
	if (Manager != nullptr)
	{
		Manager->RemoveRequest(Self);
		Manager = nullptr;
	}
	CompleteDelegate.ExecuteIfBound(Self, Response, Response.IsValid());
}
