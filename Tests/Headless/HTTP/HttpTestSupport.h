// What every HTTP test needs: a record of completions, and the engine loop's tick.
#pragma once

#include "Headless/HeadlessHttp.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "Interfaces/IHttpRequest.h"
#include "Interfaces/IHttpResponse.h"
#include "Modules/ModuleManager.h"

#include <chrono>
#include <functional>
#include <string>
#include <thread>

/** What the completion delegate saw; shared so that it outlives the test's own references. */
struct FCompletionRecord
{
	int32 Count = 0;
	FHttpResponsePtr Response;
	bool bConnectedSuccessfully = false;
	std::thread::id ThreadId;
};

inline TSharedRef<FCompletionRecord> RecordCompletion(const FHttpRequestRef& Request)
{
	TSharedRef<FCompletionRecord> Record = MakeShared<FCompletionRecord>();
	Request->OnProcessRequestComplete().BindLambda([Record](FHttpRequestPtr, FHttpResponsePtr Response, bool bConnectedSuccessfully)
	{
		++Record->Count;
		Record->Response = Response;
		Record->bConnectedSuccessfully = bConnectedSuccessfully;
		Record->ThreadId = std::this_thread::get_id();
	});
	return Record;
}

inline FHttpRequestRef MakeRequest(const FString& Verb, const std::string& Url)
{
	FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
	Request->SetVerb(Verb);
	Request->SetURL(FString(Url.c_str()));
	return Request;
}

/** Each test gets a fresh module; unloading also closes the connections the last one kept alive. */
inline void UnloadHttpModule()
{
	FModuleManager::Get().UnloadModule(TEXT("HTTP"));
}

inline void TickHttp()
{
	FHttpModule::Get().GetHttpManager().Tick(1.0f / 60.0f);
}

/** Ticks as the engine loop would until Condition holds, sleeping only while nothing is due. */
inline bool TickUntil(const std::function<bool()>& Condition, std::chrono::milliseconds Limit = std::chrono::seconds(10))
{
	constexpr int32 MaxIterations = 10000;
	const auto Deadline = std::chrono::steady_clock::now() + Limit;
	for (int32 Iteration = 0; Iteration < MaxIterations && std::chrono::steady_clock::now() < Deadline; ++Iteration)
	{
		TickHttp();
		if (Condition())
		{
			return true;
		}
		FHeadlessHttp::WaitForGameThreadWork(0.02f);
	}
	return false;
}

inline std::string ToStdString(const FString& Text)
{
	std::string Result;
	for (const TCHAR Character : Text)
	{
		Result += Character < 0x80 ? static_cast<char>(Character) : '?';
	}
	return Result;
}
