#include "Framework/Application/SlateApplication.h"

#include "Templates/UniquePtr.h"

namespace
{
	TUniquePtr<FSlateApplication>& CurrentApplication()
	{
		static TUniquePtr<FSlateApplication> Application;
		return Application;
	}
}

FSlateApplication::FSlateApplication(const TSharedRef<FSlateRenderer>& InRenderer)
	: Renderer(InRenderer)
{
}

void FSlateApplication::Create()
{
	Create(MakeShared<FSlateRenderer>());
}

void FSlateApplication::Create(const TSharedRef<FSlateRenderer>& InRenderer)
{
	CurrentApplication() = TUniquePtr<FSlateApplication>(new FSlateApplication(InRenderer));
}

void FSlateApplication::Shutdown()
{
	CurrentApplication().Reset();
}

bool FSlateApplication::IsInitialized()
{
	return CurrentApplication().IsValid();
}

FSlateApplication& FSlateApplication::Get()
{
	if (!IsInitialized())
	{
		Create();
	}
	return *CurrentApplication();
}

void FSlateApplication::InitializeRenderer(const TSharedRef<FSlateRenderer>& InRenderer)
{
	Renderer = InRenderer;
}
