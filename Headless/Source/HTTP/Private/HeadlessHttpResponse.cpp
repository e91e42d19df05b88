#include "HeadlessHttpResponse.h"

#include "HttpUrl.h"

FHeadlessHttpResponse::FHeadlessHttpResponse(const FString& InRequestURL, FHttpTransportResult&& Result)
	: URL(InRequestURL)
	, ResponseCode(Result.ResponseCode)
	, Headers(MoveTemp(Result.Headers))
	, Content(MoveTemp(Result.Content))
{
}

const FString& FHeadlessHttpResponse::GetURL() const
{
	return URL;
}

FString FHeadlessHttpResponse::GetURLParameter(const FString& ParameterName) const
{
	return UE::Http::Private::FindUrlParameter(URL, ParameterName);
}

FString FHeadlessHttpResponse::GetHeader(const FString& HeaderName) const
{
	return Headers.Find(HeaderName);
}

TArray<FString> FHeadlessHttpResponse::GetAllHeaders() const
{
	return Headers.ToStrings();
}

FString FHeadlessHttpResponse::GetContentType() const
{
	return GetHeader(TEXT("Content-Type"));
}

uint64 FHeadlessHttpResponse::GetContentLength() const
{
	return static_cast<uint64>(Content.Num());
}

const TArray<uint8>& FHeadlessHttpResponse::GetContent() const
{
	return Content;
}

int32 FHeadlessHttpResponse::GetResponseCode() const
{
	return ResponseCode;
}

FString FHeadlessHttpResponse::GetContentAsString() const
{
	// The payload is not null-terminated, and may hold anything the server sent.
	return FString(Content.Num(), reinterpret_cast<const UTF8CHAR*>(Content.GetData()));
}

EHttpRequestStatus::Type FHeadlessHttpResponse::GetStatus() const
{
	// A response exists only for a request that got a reply.
	return EHttpRequestStatus::Succeeded;
}

EHttpFailureReason FHeadlessHttpResponse::GetFailureReason() const
{
	return EHttpFailureReason::None;
}
