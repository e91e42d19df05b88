// The panel against the platform emulator on loopback, as a game meets it: a full load (sign-in,
// ensure, the demo 10 x 8 stash drawn and laid out) and a deposit accepted with its reload drawn.
// Each iteration is timed on its own, so the table carries the median and the 99th percentile.
#include "BenchmarkPanelListener.h"
#include "Containers/StringConv.h"
#include "Emulator.h"
#include "Headless/HeadlessEngine.h"
#include "QuorvelLog.h"
#include "QuorvelSettings.h"
#include "QuorvelStashPanel.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

namespace
{
	using FClock = std::chrono::steady_clock;

	/** One engine and one emulator for the whole run: the headless engine has one viewport at a time. */
	std::unique_ptr<FHeadlessEngine> GEngine;
	std::unique_ptr<quorvel::emulator::Emulator> GEmulator;

	double MillisecondsSince(FClock::time_point Start)
	{
		return std::chrono::duration<double, std::milli>(FClock::now() - Start).count();
	}

	void ReportPercentiles(benchmark::State& State, std::vector<double>& Milliseconds)
	{
		if (Milliseconds.empty())
		{
			return;
		}
		std::sort(Milliseconds.begin(), Milliseconds.end());
		const auto At = [&Milliseconds](double Fraction)
		{
			return Milliseconds[std::min(Milliseconds.size() - 1, size_t(Fraction * double(Milliseconds.size())))];
		};
		State.counters["p50_ms"] = At(0.50);
		State.counters["p99_ms"] = At(0.99);
	}

	/** The demo player's stash on screen, loaded once; the benchmarks drive every further load. */
	class FStashOnScreen
	{
	public:
		FStashOnScreen()
			: Panel(CreateWidget<UQuorvelStashPanel>(GetTransientPackage()))
			, Listener(NewObject<UBenchmarkPanelListener>(GetTransientPackage()))
		{
			Panel->AddToRoot();
			Listener->AddToRoot();
			Panel->bLoadOnConstruct = false;
			Panel->OnStashLoaded.AddDynamic(Listener, &UBenchmarkPanelListener::HandleLoaded);
			Panel->OnStashFailed.AddDynamic(Listener, &UBenchmarkPanelListener::HandleFailed);
			Panel->OnDepositAccepted.AddDynamic(Listener, &UBenchmarkPanelListener::HandleDeposit);
			Panel->AddToViewport();
			Panel->LoadStash();
			bReady = WaitForLoad(0);
		}

		~FStashOnScreen()
		{
			Panel->RemoveFromParent();
			Panel->RemoveFromRoot();
			Listener->RemoveFromRoot();
			GEngine->CollectGarbageNow();
		}

		/** Ticks until a load after the first Before has been drawn, then lays it out as the next frame does. */
		bool WaitForLoad(int32 Before)
		{
			const bool bLoaded = GEngine->TickUntil([this, Before]() { return Listener->Loads + Listener->Failures > Before; }, 100000, 10.0f, 0.001f);
			GEngine->Tick(0.0f);
			return bLoaded && Listener->Failures == 0;
		}

		const TArray<FQuorvelItemInstance>& Contents() const
		{
			const FProperty* Property = Panel->GetClass()->FindPropertyByName(FName(TEXT("Contents")));
			return *Property->ContainerPtrToValuePtr<TArray<FQuorvelItemInstance>>(Panel);
		}

		/** Runs Act and times it until its reload is drawn and laid out; records the time for the iteration. */
		bool TimeUntilDrawn(benchmark::State& State, TFunctionRef<void()> Act)
		{
			const int32 Before = Listener->Loads;
			const FClock::time_point Start = FClock::now();
			Act();
			if (!WaitForLoad(Before))
			{
				return false;
			}
			Milliseconds.push_back(MillisecondsSince(Start));
			State.SetIterationTime(Milliseconds.back() / 1000.0);
			// The previous drawing's widgets are garbage now. A game collects them every so often; left to
			// pile up, they would slow every name lookup and the run would measure the pile, not the panel.
			GEngine->CollectGarbageNow();
			return true;
		}

		UQuorvelStashPanel* Panel;
		UBenchmarkPanelListener* Listener;
		bool bReady = false;
		std::vector<double> Milliseconds;
	};

	void BM_FullLoad_DemoStash(benchmark::State& State)
	{
		FStashOnScreen Stash;
		for (auto _ : State)
		{
			if (!Stash.TimeUntilDrawn(State, [&Stash]() { Stash.Panel->LoadStash(); }))
			{
				State.SkipWithError("a load did not arrive");
				break;
			}
		}
		ReportPercentiles(State, Stash.Milliseconds);
	}
	BENCHMARK(BM_FullLoad_DemoStash)->UseManualTime()->Unit(benchmark::kMillisecond);

	void BM_DepositAcceptedAndReloadDrawn(benchmark::State& State)
	{
		FStashOnScreen Stash;
		for (auto _ : State)
		{
			const int32 Deposits = Stash.Listener->Deposits;
			if (!Stash.TimeUntilDrawn(State, [&Stash]() { Stash.Panel->DepositItem(FName(TEXT("bandage")), 1, 9, 7); })
				|| Stash.Listener->Deposits == Deposits)
			{
				State.SkipWithError("a deposit was not accepted and drawn");
				break;
			}

			// The cell is freed again outside the timing, so every deposit meets the same stash.
			const FQuorvelItemInstance* Deposited = Stash.Contents().FindByPredicate([](const FQuorvelItemInstance& Instance)
			{
				return Instance.X == 9 && Instance.Y == 7;
			});
			if (Deposited == nullptr)
			{
				State.SkipWithError("the deposited stack was not drawn at its cell");
				break;
			}
			const int32 Reloads = Stash.Listener->Loads;
			Stash.Panel->WithdrawInstance(*Deposited);
			Stash.WaitForLoad(Reloads);
		}
		ReportPercentiles(State, Stash.Milliseconds);
	}
	BENCHMARK(BM_DepositAcceptedAndReloadDrawn)->UseManualTime()->Unit(benchmark::kMillisecond);
}

int main(int argc, char** argv)
{
	benchmark::Initialize(&argc, argv);
	FHeadlessEngineOptions EngineOptions;
	EngineOptions.ProjectModules = { FName(TEXT("QuorvelCore")), FName(TEXT("QuorvelUI")), FName(TEXT("QuorvelDemo")) };
	EngineOptions.ViewportSize = FVector2D(1280.0, 800.0);
	EngineOptions.GarbageCollectionInterval = 0.0f;
	GEngine = std::make_unique<FHeadlessEngine>(EngineOptions);

	quorvel::emulator::EmulatorOptions EmulatorOptions;
	EmulatorOptions.port = 0;
	EmulatorOptions.database = ":memory:";
	EmulatorOptions.seed = true;
	GEmulator = std::make_unique<quorvel::emulator::Emulator>(EmulatorOptions);
	GetMutableDefault<UQuorvelSettings>()->BaseUrl = UTF8_TO_TCHAR(GEmulator->url().c_str());
	// Every load says so at Display; the run prints its table, not a line per load.
	LogQuorvel.SetVerbosity(ELogVerbosity::Warning);

	benchmark::RunSpecifiedBenchmarks();
	benchmark::Shutdown();
	GEngine.reset();
	GEmulator.reset();
	return 0;
}
