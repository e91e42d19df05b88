#include "QuorvelClient.h"

#include "Misc/Guid.h"

FString FQuorvelClient::NewIdempotencyKey()
{
	return FGuid::NewGuid().ToString(EGuidFormats::DigitsWithHyphensLower);
}
