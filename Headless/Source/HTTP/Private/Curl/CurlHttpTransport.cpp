#include "Curl/CurlHttpTransport.h"

#include "Containers/StringConv.h"
#include "HttpLog.h"

#include <string>

namespace
{
	std::string ToUtf8(const FString& Text)
	{
		const FTCHARToUTF8 Utf8(*Text, Text.Len());
		return std::string(reinterpret_cast<const char*>(Utf8.Get()), Utf8.Length());
	}

	FString FromUtf8(const char* Text, size_t Length)
	{
		return FString(static_cast<int32>(Length), reinterpret_cast<const UTF8CHAR*>(Text));
	}

	EHttpFailureReason ToFailureReason(CURLcode Code)
	{
		switch (Code)
		{
		case CURLE_OPERATION_TIMEDOUT:
			return EHttpFailureReason::TimedOut;
		case CURLE_COULDNT_CONNECT:
		case CURLE_COULDNT_RESOLVE_HOST:
		case CURLE_COULDNT_RESOLVE_PROXY:
		case CURLE_SSL_CONNECT_ERROR:
		case CURLE_PEER_FAILED_VERIFICATION:
		case CURLE_SEND_ERROR:
		case CURLE_RECV_ERROR:
		case CURLE_GOT_NOTHING:
			return EHttpFailureReason::ConnectionError;
		default:
			return EHttpFailureReason::Other;
		}
	}

	long ToMilliseconds(float Seconds)
	{
		return Seconds > 0.0f ? static_cast<long>(Seconds * 1000.0f + 0.5f) : 0L;
	}
}

struct FCurlHttpTransport::FTransfer
{
	explicit FTransfer(FHttpTransportRequest&& Request);
	~FTransfer();

	static size_t OnBody(char* Data, size_t Size, size_t Count, void* UserData);
	static size_t OnHeader(char* Data, size_t Size, size_t Count, void* UserData);

	uint64 Id = 0;
	CURL* Easy = nullptr;
	curl_slist* HeaderList = nullptr;
	TUniqueFunction<void(FHttpTransportResult&&)> OnFinished;
	FHttpTransportResult Result;
};

FCurlHttpTransport::FTransfer::FTransfer(FHttpTransportRequest&& Request)
	: Id(Request.Id)
	, Easy(curl_easy_init())
	, OnFinished(MoveTemp(Request.OnFinished))
{
	check(Easy != nullptr);
	curl_easy_setopt(Easy, CURLOPT_URL, ToUtf8(Request.URL).c_str());
	curl_easy_setopt(Easy, CURLOPT_PROTOCOLS_STR, "http,https");
	curl_easy_setopt(Easy, CURLOPT_NOSIGNAL, 1L);
	curl_easy_setopt(Easy, CURLOPT_PRIVATE, this);
	curl_easy_setopt(Easy, CURLOPT_WRITEFUNCTION, &FTransfer::OnBody);
	curl_easy_setopt(Easy, CURLOPT_WRITEDATA, this);
	curl_easy_setopt(Easy, CURLOPT_HEADERFUNCTION, &FTransfer::OnHeader);
	curl_easy_setopt(Easy, CURLOPT_HEADERDATA, this);
	curl_easy_setopt(Easy, CURLOPT_TIMEOUT_MS, ToMilliseconds(Request.TimeoutSeconds));
	curl_easy_setopt(Easy, CURLOPT_CONNECTTIMEOUT_MS, ToMilliseconds(Request.ConnectionTimeoutSeconds));

	const std::string Verb = ToUtf8(Request.Verb);
	const bool bHasBody = Request.Content.Num() > 0 || Verb == "POST" || Verb == "PUT" || Verb == "PATCH";
	if (Verb == "HEAD")
	{
		curl_easy_setopt(Easy, CURLOPT_NOBODY, 1L);
	}
	else if (Verb != "GET" || bHasBody)
	{
		if (bHasBody)
		{
			curl_easy_setopt(Easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(Request.Content.Num()));
			curl_easy_setopt(Easy, CURLOPT_COPYPOSTFIELDS, Request.Content.Num() > 0 ? reinterpret_cast<const char*>(Request.Content.GetData()) : "");
		}
		curl_easy_setopt(Easy, CURLOPT_CUSTOMREQUEST, Verb.c_str());
	}

	for (const FHttpHeaderList::FHeader& Header : Request.Headers.GetHeaders())
	{
		HeaderList = curl_slist_append(HeaderList, ToUtf8(Header.Name + TEXT(": ") + Header.Value).c_str());
	}
	// Curl would otherwise add a form content type nobody asked for, and stall larger bodies on "100 Continue".
	if (bHasBody && Request.Headers.Find(TEXT("Content-Type")).IsEmpty())
	{
		HeaderList = curl_slist_append(HeaderList, "Content-Type:");
	}
	HeaderList = curl_slist_append(HeaderList, "Expect:");
	curl_easy_setopt(Easy, CURLOPT_HTTPHEADER, HeaderList);
}

FCurlHttpTransport::FTransfer::~FTransfer()
{
	curl_easy_cleanup(Easy);
	curl_slist_free_all(HeaderList);
}

size_t FCurlHttpTransport::FTransfer::OnBody(char* Data, size_t Size, size_t Count, void* UserData)
{
	FTransfer* Transfer = static_cast<FTransfer*>(UserData);
	Transfer->Result.Content.Append(reinterpret_cast<const uint8*>(Data), static_cast<int32>(Size * Count));
	return Size * Count;
}

size_t FCurlHttpTransport::FTransfer::OnHeader(char* Data, size_t Size, size_t Count, void* UserData)
{
	FTransfer* Transfer = static_cast<FTransfer*>(UserData);
	std::string Line(Data, Size * Count);
	while (!Line.empty() && (Line.back() == '\r' || Line.back() == '\n'))
	{
		Line.pop_back();
	}
	if (Line.rfind("HTTP/", 0) == 0)
	{
		// A new status line: what came before belonged to an interim reply or a redirect.
		Transfer->Result.Headers = FHttpHeaderList();
	}
	else if (const size_t Colon = Line.find(':'); Colon != std::string::npos && Colon > 0)
	{
		const size_t ValueStart = Line.find_first_not_of(" \t", Colon + 1);
		const std::string Value = ValueStart == std::string::npos ? std::string() : Line.substr(ValueStart);
		Transfer->Result.Headers.Append(FromUtf8(Line.data(), Colon), FromUtf8(Value.data(), Value.size()));
	}
	return Size * Count;
}

FCurlHttpTransport::FCurlHttpTransport()
{
	curl_global_init(CURL_GLOBAL_DEFAULT);
	Multi = curl_multi_init();
	check(Multi != nullptr);
	Worker = std::thread([this]()
	{
		Run();
	});
}

FCurlHttpTransport::~FCurlHttpTransport()
{
	Stop();
	PendingTransfers.clear();
	curl_multi_cleanup(Multi);
	curl_global_cleanup();
}

void FCurlHttpTransport::StartRequest(FHttpTransportRequest&& Request)
{
	std::unique_ptr<FTransfer> Transfer = std::make_unique<FTransfer>(MoveTemp(Request));
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		if (bStopping)
		{
			return;
		}
		PendingTransfers.push_back(std::move(Transfer));
	}
	curl_multi_wakeup(Multi);
}

void FCurlHttpTransport::CancelRequest(uint64 RequestId)
{
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		if (bStopping)
		{
			return;
		}
		PendingCancels.push_back(RequestId);
	}
	curl_multi_wakeup(Multi);
}

void FCurlHttpTransport::Stop()
{
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		bStopping = true;
	}
	curl_multi_wakeup(Multi);
	if (Worker.joinable())
	{
		Worker.join();
	}
}

void FCurlHttpTransport::Run()
{
	constexpr int MaxPollMilliseconds = 1000;
	for (;;)
	{
		std::vector<std::unique_ptr<FTransfer>> Added;
		std::vector<uint64> Cancelled;
		{
			std::lock_guard<std::mutex> Lock(Mutex);
			if (bStopping)
			{
				break;
			}
			Added.swap(PendingTransfers);
			Cancelled.swap(PendingCancels);
		}
		// Added before cancelled: a request cancelled right after it started is in both lists.
		AddTransfers(Added);
		for (const uint64 RequestId : Cancelled)
		{
			RemoveTransfer(RequestId);
		}

		int RunningTransfers = 0;
		curl_multi_perform(Multi, &RunningTransfers);
		CompleteFinishedTransfers();
		curl_multi_poll(Multi, nullptr, 0, MaxPollMilliseconds, nullptr);
	}

	while (!ActiveTransfers.empty())
	{
		RemoveTransfer(ActiveTransfers.begin()->first);
	}
}

void FCurlHttpTransport::AddTransfers(std::vector<std::unique_ptr<FTransfer>>& Added)
{
	for (std::unique_ptr<FTransfer>& Transfer : Added)
	{
		curl_multi_add_handle(Multi, Transfer->Easy);
		const uint64 Id = Transfer->Id;
		ActiveTransfers.emplace(Id, std::move(Transfer));
	}
}

void FCurlHttpTransport::RemoveTransfer(uint64 RequestId)
{
	const auto Found = ActiveTransfers.find(RequestId);
	if (Found != ActiveTransfers.end())
	{
		curl_multi_remove_handle(Multi, Found->second->Easy);
		ActiveTransfers.erase(Found);
	}
}

void FCurlHttpTransport::CompleteFinishedTransfers()
{
	int MessagesLeft = 0;
	while (CURLMsg* Message = curl_multi_info_read(Multi, &MessagesLeft))
	{
		if (Message->msg != CURLMSG_DONE)
		{
			continue;
		}
		FTransfer* Transfer = nullptr;
		curl_easy_getinfo(Message->easy_handle, CURLINFO_PRIVATE, &Transfer);
		check(Transfer != nullptr);

		FHttpTransportResult& Result = Transfer->Result;
		const CURLcode Code = Message->data.result;
		if (Code == CURLE_OK)
		{
			long ResponseCode = 0;
			curl_easy_getinfo(Transfer->Easy, CURLINFO_RESPONSE_CODE, &ResponseCode);
			Result.ResponseCode = static_cast<int32>(ResponseCode);
		}
		else
		{
			UE_LOG(LogHttp, Verbose, TEXT("Request failed: %s"), *FString(curl_easy_strerror(Code)));
			Result = FHttpTransportResult();
			Result.FailureReason = ToFailureReason(Code);
		}
		Transfer->OnFinished(MoveTemp(Result));
		RemoveTransfer(Transfer->Id);
	}
}
