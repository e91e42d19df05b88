#include "Modules/ModuleManager.h"
#include "QuorvelClientLifetime.h"

class FQuorvelCoreModule : public IModuleInterface
{
public:
	virtual void StartupModule() override
	{
		UE::Quorvel::Private::StartClient();
	}

	virtual void ShutdownModule() override
	{
		UE::Quorvel::Private::ShutDownClient();
	}
};

IMPLEMENT_MODULE(FQuorvelCoreModule, QuorvelCore);
