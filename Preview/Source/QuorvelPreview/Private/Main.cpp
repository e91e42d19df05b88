// The preview: a headless game showing the demo stash screen (a stash, a loadout and the
// character's own items) against the platform emulator started in this process, served to a
// browser page where a person drags stacks between them. Runs until Ctrl-C.
//
//   QuorvelPreview [--port N] [--png DIR] [--platform URL] [--scale S] [--grid WxH] ...
#include "PreviewOptions.h"
#include "PreviewScene.h"
#include "Headless/HeadlessHttp.h"
#include "PreviewServer.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <exception>

namespace
{
	std::atomic<bool> GStopRequested = false;

	void RequestStop(int)
	{
		GStopRequested = true;
	}

	/** The default scene once, as a picture: for scripts and checks that need no browser. */
	int RenderOnce(FPreviewScene& Scene, const std::filesystem::path& Directory)
	{
		const bool bLoaded = Scene.WaitUntilLoaded(30.0f);
		const std::filesystem::path File = Directory / "scene.png";
		if (!Scene.SaveFrame(File))
		{
			return 1;
		}
		std::printf("%s\n", std::filesystem::absolute(File).string().c_str());
		if (!bLoaded)
		{
			std::fprintf(stderr, "The panels did not finish loading within 30 seconds.\n");
			return 1;
		}
		return 0;
	}

	int Serve(FPreviewScene& Scene, const FPreviewOptions& Options)
	{
		FPreviewServer Server(Scene, std::filesystem::absolute(Options.ProjectDirectory) / "Preview" / "Web");
		const int Port = Server.Start(Options.Port);
		std::printf("Preview: http://127.0.0.1:%d/\n", Port);
		std::printf("Platform inspection page: %s/\n", Scene.GetPlatformUrl().c_str());
		std::printf("Ctrl-C to stop.\n");
		std::fflush(stdout);

		std::signal(SIGINT, RequestStop);
		std::signal(SIGTERM, RequestStop);
		while (!GStopRequested)
		{
			Scene.Tick();
			FHeadlessHttp::WaitForGameThreadWork(0.01f);
		}
		Scene.AbandonMove();
		Server.Stop();
		// What the server handed over before it stopped runs now, while the scene is whole.
		Scene.Tick();
		return 0;
	}
}

int main(int ArgC, char** ArgV)
{
	std::string Problem;
	const std::optional<FPreviewOptions> Options = ParsePreviewOptions(ArgC, ArgV, Problem);
	if (!Options)
	{
		std::fprintf(stderr, "QuorvelPreview: %s\n%s", Problem.c_str(), PreviewUsage());
		return 2;
	}
	try
	{
		FPreviewScene Scene(*Options);
		return Options->PngDirectory ? RenderOnce(Scene, *Options->PngDirectory) : Serve(Scene, *Options);
	}
	catch (const std::exception& Error)
	{
		std::fprintf(stderr, "QuorvelPreview: %s\n", Error.what());
		return 1;
	}
}
