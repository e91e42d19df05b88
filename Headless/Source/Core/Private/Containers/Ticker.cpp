#include "Containers/Ticker.h"

#include <atomic>

struct FTSTicker::FElement
{
	FTickerDelegate Delegate;
	float DelayTime = 0.0f;
	double FireTime = 0.0;
	std::atomic<bool> bRemoved = false;
};

FTSTicker& FTSTicker::GetCoreTicker()
{
	static FTSTicker CoreTicker;
	return CoreTicker;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	FElementPtr Element = MakeShared<FElement, ESPMode::ThreadSafe>();
	Element->Delegate = InDelegate;
	Element->DelayTime = InDelay;
	std::lock_guard<std::mutex> Lock(Mutex);
	Element->FireTime = CurrentTime + InDelay;
	Elements.Add(Element);
	return Element;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const TCHAR* /*InName*/, float InDelay, TFunction<bool(float)> Function)
{
	return AddTicker(FTickerDelegate::CreateLambda(MoveTemp(Function)), InDelay);
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (const FElementPtr Element = Handle.Pin())
	{
		Element->bRemoved = true;
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	TArray<FElementPtr> Due;
	double Now = 0.0;
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		CurrentTime += DeltaTime;
		Now = CurrentTime;
		TArray<FElementPtr> Waiting;
		for (FElementPtr& Element : Elements)
		{
			if (Element->bRemoved)
			{
				continue;
			}
			(Element->FireTime <= Now ? Due : Waiting).Add(MoveTemp(Element));
		}
		Elements = MoveTemp(Waiting);
	}

	// Outside the lock, so that a delegate may add or remove tickers.
	for (FElementPtr& Element : Due)
	{
		if (Element->bRemoved || !Element->Delegate.IsBound())
		{
			continue;
		}
		if (Element->Delegate.Execute(DeltaTime) && !Element->bRemoved)
		{
			Element->FireTime = Now + Element->DelayTime;
			std::lock_guard<std::mutex> Lock(Mutex);
			Elements.Add(MoveTemp(Element));
		}
	}
}

void FTSTicker::Reset()
{
	std::lock_guard<std::mutex> Lock(Mutex);
	Elements.Reset();
}
