#pragma once

#include "CoreMinimal.h"
#include "HttpTransport.h"

#include <curl/curl.h>

#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>



/**
 * Sends requests over the network with libcurl, all of them on one worker thread driving a multi
 * handle, whose connection cache keeps connections alive between requests to the same host.
 */
class FCurlHttpTransport : public IHttpTransport
{
public:
	FCurlHttpTransport();
	virtual ~FCurlHttpTransport() override;

	virtual void StartRequest(FHttpTransportRequest&& Request) override;
	virtual void CancelRequest(uint64 RequestId) override;

	/** Joins the worker; requests still in flight end without a result. Later requests are dropped. */
	void Stop();

private:
	struct FTransfer;

	void Run();
	void AddTransfers(std::vector<std::unique_ptr<FTransfer>>& Added);
	void RemoveTransfer(uint64 RequestId);
	void CompleteFinishedTransfers();

	CURLM* Multi = nullptr;
	std::thread Worker;

	std::mutex Mutex;
	bool bStopping = false;
	std::vector<std::unique_ptr<FTransfer>> PendingTransfers;
	std::vector<uint64> PendingCancels;

	/** Worker thread only. */
	std::unordered_map<uint64, std::unique_ptr<FTransfer>> ActiveTransfers;
};
