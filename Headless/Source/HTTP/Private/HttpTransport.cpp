#include "HttpTransport.h"

namespace UE::Http::Private
{
	TSharedPtr<IHttpTransport, ESPMode::ThreadSafe>& GetTransportOverride()
	{
		static TSharedPtr<IHttpTransport, ESPMode::ThreadSafe> Override;
		return Override;
	}
}
