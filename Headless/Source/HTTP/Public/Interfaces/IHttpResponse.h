#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpBase.h"

namespace EHttpResponseCodes
{
	enum Type
	{
		Unknown = 0,
		Continue = 100,
		SwitchProtocol = 101,
		Ok = 200,
		Created = 201,
		Accepted = 202,
		Partial = 203,
		NoContent = 204,
		ResetContent = 205,
		PartialContent = 206,
		Ambiguous = 300,
		Moved = 301,
		Redirect = 302,
		RedirectMethod = 303,
		NotModified = 304,
		UseProxy = 305,
		RedirectKeepVerb = 307,
		BadRequest = 400,
		Denied = 401,
		PaymentReq = 402,
		Forbidden = 403,
		NotFound = 404,
		BadMethod = 405,
		NoneAcceptable = 406,
		ProxyAuthReq = 407,
		RequestTimeout = 408,
		Conflict = 409,
		Gone = 410,
		LengthRequired = 411,
		PrecondFailed = 412,
		RequestTooLarge = 413,
		UriTooLong = 414,
		UnsupportedMedia = 415,
		TooManyRequests = 429,
		RetryWith = 449,
		ServerError = 500,
		NotSupported = 501,
		BadGateway = 502,
		ServiceUnavail = 503,
		GatewayTimeout = 504,
		VersionNotSup = 505
	};

	/** Ok to PartialContent; the other 2xx codes are not taken for plain success. */
	inline bool IsOk(const int32 StatusCode)
	{
		return StatusCode >= Ok && StatusCode <= PartialContent;
	}
}

/** A reply that arrived: created by the module, read by the completion delegate. */
class IHttpResponse : public IHttpBase
{
public:
	virtual int32 GetResponseCode() const = 0;

	/** The payload decoded from UTF-8; malformed sequences become U+FFFD. */
	virtual FString GetContentAsString() const = 0;
};
