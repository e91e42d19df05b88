#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/HttpRequestCommon.h"
#include "HttpHeaderList.h"
#include "HttpTransport.h"

class FHttpManager;

/**
 * The module's request. Lives on the game thread: a transport only ever sees a copy of it, and its
 * outcome comes back as a task that the manager runs during Tick.
 */
class FHeadlessHttpRequest : public FHttpRequestCommon
{
public:
	virtual ~FHeadlessHttpRequest() override;

	virtual const FString& GetURL() const override;
	virtual FString GetURLParameter(const FString& ParameterName) const override;
	virtual FString GetHeader(const FString& HeaderName) const override;
	virtual TArray<FString> GetAllHeaders() const override;
	virtual FString GetContentType() const override;
	virtual uint64 GetContentLength() const override;
	virtual const TArray<uint8>& GetContent() const override;

	virtual FString GetVerb() const override;
	virtual void SetVerb(const FString& InVerb) override;
	virtual void SetURL(const FString& InURL) override;
	virtual void SetContent(const TArray<uint8>& ContentPayload) override;
	virtual void SetContent(TArray<uint8>&& ContentPayload) override;
	virtual void SetContentAsString(const FString& ContentString) override;
	virtual void SetHeader(const FString& HeaderName, const FString& HeaderValue) override;
	virtual void AppendToHeader(const FString& HeaderName, const FString& AdditionalHeaderValue) override;
	virtual bool ProcessRequest() override;
	virtual void CancelRequest() override;
	virtual void Tick(float DeltaSeconds) override;

	/** The manager is going away with this request in progress: end it without a completion. */
	void Abandon();

private:
	bool CanModify() const;
	FHttpTransportRequest MakeTransportRequest();

	/** Fails the request at the next tick, whatever the transport reports meanwhile. */
	void ScheduleFailure(EHttpFailureReason Reason);
	void OnTransportFinished(uint64 InTransportRequestId, FHttpTransportResult&& Result);
	void Finish(EHttpFailureReason Reason, const FHttpResponsePtr& InResponse);

	FString URL;
	FString Verb;
	FHttpHeaderList Headers;
	TArray<uint8> Content;

	/** Set while in progress. */
	FHttpManager* Manager = nullptr;
	TSharedPtr<IHttpTransport, ESPMode::ThreadSafe> Transport;
	/** Tells the results of this processing apart from those of an earlier one. */
	uint64 TransportRequestId = 0;
	TOptional<EHttpFailureReason> ScheduledFailure;
};
