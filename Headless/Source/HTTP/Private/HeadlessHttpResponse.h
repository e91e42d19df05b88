#pragma once

#include "CoreMinimal.h"
#include "HttpHeaderList.h"
#include "HttpTransport.h"
#include "Interfaces/IHttpResponse.h"

/** A reply as a transport delivered it; immutable once made. */
class FHeadlessHttpResponse : public IHttpResponse
{
public:
	FHeadlessHttpResponse(const FString& InRequestURL, FHttpTransportResult&& Result);

	virtual const FString& GetURL() const override;
	virtual FString GetURLParameter(const FString& ParameterName) const override;
	virtual FString GetHeader(const FString& HeaderName) const override;
	virtual TArray<FString> GetAllHeaders() const override;
	virtual FString GetContentType() const override;
	virtual uint64 GetContentLength() const override;
	virtual const TArray<uint8>& GetContent() const override;
	virtual EHttpRequestStatus::Type GetStatus() const override;
	virtual EHttpFailureReason GetFailureReason() const override;
	virtual int32 GetResponseCode() const override;
	virtual FString GetContentAsString() const override;

private:
	FString URL;
	int32 ResponseCode = 0;
	FHttpHeaderList Headers;
	TArray<uint8> Content;
};
