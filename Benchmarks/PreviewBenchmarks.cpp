// The preview's share of the time from a drop to its frame in the browser: painting the default
// scene and encoding it as the PNG the page loads.
#include "Headless/HeadlessEngine.h"
#include "Headless/HeadlessImage.h"
#include "PreviewScene.h"
#include "QuorvelLog.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace
{
	std::unique_ptr<FPreviewScene> GScene;

	void BM_PaintDefaultScene(benchmark::State& State)
	{
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(GScene->GetEngine().RenderViewport());
		}
	}
	BENCHMARK(BM_PaintDefaultScene)->Unit(benchmark::kMillisecond);

	void BM_EncodeFramePng(benchmark::State& State)
	{
		const FHeadlessImage Frame = GScene->GetEngine().RenderViewport();
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(Frame.EncodePng());
		}
		State.counters["pixels"] = double(Frame.GetSizeX()) * Frame.GetSizeY();
	}
	BENCHMARK(BM_EncodeFramePng)->Unit(benchmark::kMillisecond);
}

int main(int argc, char** argv)
{
	benchmark::Initialize(&argc, argv);
	FPreviewOptions Options;
	Options.EmulatorDatabase = ":memory:";
	GScene = std::make_unique<FPreviewScene>(Options);
	LogQuorvel.SetVerbosity(ELogVerbosity::Warning);
	if (!GScene->WaitUntilLoaded(30.0f))
	{
		return 1;
	}
	benchmark::RunSpecifiedBenchmarks();
	benchmark::Shutdown();
	GScene.reset();
	return 0;
}
