#include "Headless/HeadlessHttp.h"

#include "HttpGameThreadQueue.h"
#include "HttpManager.h"
#include "HttpModule.h"

bool FHeadlessHttp::WaitForGameThreadWork(float TimeoutSeconds)
{
	return FHttpModule::Get().GetHttpManager().GameThreadTasks->WaitForTasks(TimeoutSeconds);
}
