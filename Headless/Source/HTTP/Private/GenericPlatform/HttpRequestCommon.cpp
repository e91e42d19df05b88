#include "GenericPlatform/HttpRequestCommon.h"

#include "HttpModule.h"

#include <chrono>

namespace
{
	double MonotonicSeconds()
	{
		return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
	}
}

FHttpRequestCompleteDelegate& FHttpRequestCommon::OnProcessRequestComplete()
{
	return CompleteDelegate;
}

EHttpRequestStatus::Type FHttpRequestCommon::GetStatus() const
{
	return Status;
}

EHttpFailureReason FHttpRequestCommon::GetFailureReason() const
{
	return FailureReason;
}

const FHttpResponsePtr FHttpRequestCommon::GetResponse() const
{
	return Response;
}

void FHttpRequestCommon::SetTimeout(float InTimeoutSecs)
{
	Timeout = InTimeoutSecs;
}

void FHttpRequestCommon::ClearTimeout()
{
	Timeout.Reset();
}

TOptional<float> FHttpRequestCommon::GetTimeout() const
{
	return Timeout;
}

float FHttpRequestCommon::GetTimeoutOrDefault() const
{
	return Timeout.IsSet() ? Timeout.GetValue() : FHttpModule::Get().GetHttpTotalTimeout();
}

float FHttpRequestCommon::GetElapsedTime() const
{
	switch (Status)
	{
	case EHttpRequestStatus::NotStarted:
		return 0.0f;
	case EHttpRequestStatus::Processing:
		return static_cast<float>(MonotonicSeconds() - StartSeconds);
	default:
		return static_cast<float>(FinishSeconds - StartSeconds);
	}
}

void FHttpRequestCommon::BeginProcessing()
{
	Status = EHttpRequestStatus::Processing;
	FailureReason = EHttpFailureReason::None;
	Response.Reset();
	StartSeconds = MonotonicSeconds();
	FinishSeconds = StartSeconds;
}

void FHttpRequestCommon::SetFinished(EHttpFailureReason Reason, const FHttpResponsePtr& InResponse)
{
	check(Reason == EHttpFailureReason::None ? InResponse.IsValid() : !InResponse.IsValid());
	FinishSeconds = MonotonicSeconds();
	FailureReason = Reason;
	Response = InResponse;
	Status = InResponse.IsValid() ? EHttpRequestStatus::Succeeded : EHttpRequestStatus::Failed;
}

bool FHttpRequestCommon::HasTimedOut() const
{
	const float Limit = GetTimeoutOrDefault();
	return Status == EHttpRequestStatus::Processing && Limit > 0.0f && GetElapsedTime() >= Limit;
}
