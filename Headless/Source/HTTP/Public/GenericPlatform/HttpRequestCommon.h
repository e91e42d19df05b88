#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpRequest.h"
#include "Interfaces/IHttpResponse.h"

/** What every request implementation shares: outcome, completion delegate, timeout and timing. */
class FHttpRequestCommon : public IHttpRequest
{
public:
	virtual FHttpRequestCompleteDelegate& OnProcessRequestComplete() override;
	virtual EHttpRequestStatus::Type GetStatus() const override;
	virtual EHttpFailureReason GetFailureReason() const override;
	virtual const FHttpResponsePtr GetResponse() const override;
	virtual void SetTimeout(float InTimeoutSecs) override;
	virtual void ClearTimeout() override;
	virtual TOptional<float> GetTimeout() const override;
	virtual float GetTimeoutOrDefault() const override;
	virtual float GetElapsedTime() const override;

protected:
	/** Clears the previous outcome and starts the clock. */
	void BeginProcessing();

	/** Records the outcome and stops the clock; a response means the request succeeded. */
	void SetFinished(EHttpFailureReason Reason, const FHttpResponsePtr& InResponse);

	bool HasTimedOut() const;

	EHttpRequestStatus::Type Status = EHttpRequestStatus::NotStarted;
	EHttpFailureReason FailureReason = EHttpFailureReason::None;
	FHttpResponsePtr Response;
	FHttpRequestCompleteDelegate CompleteDelegate;

private:
	TOptional<float> Timeout;
	double StartSeconds = 0.0;
	double FinishSeconds = 0.0;
};
