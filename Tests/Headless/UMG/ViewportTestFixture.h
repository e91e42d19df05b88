// A viewport per test, and helpers to put a tree of widgets on it.
#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Headless/HeadlessViewport.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "TestUserWidget.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

class ViewportTest : public testing::Test
{
protected:
	void SetUp() override
	{
		Viewport = MakeUnique<FHeadlessViewport>(FVector2D(800.0, 600.0));
		Screen = CreateWidget<UTestUserWidget>(nullptr);
	}

	void TearDown() override
	{
		Viewport.Reset();
		CollectGarbage();
	}

	template <typename WidgetT>
	WidgetT* Make(FName Name = NAME_None)
	{
		return Screen->WidgetTree->ConstructWidget<WidgetT>(WidgetT::StaticClass(), Name);
	}

	// Makes Root the screen widget's root, shows it and runs one frame.
	void Show(UWidget* Root)
	{
		Screen->WidgetTree->RootWidget = Root;
		Screen->AddToViewport();
		Viewport->Tick();
	}

	// The rectangle a widget was last arranged at, in desktop space.
	static FSlateRect ScreenRect(const UWidget* Widget)
	{
		const FGeometry& Geometry = Widget->GetCachedGeometry();
		return FSlateRect::FromPointAndExtent(Geometry.GetAbsolutePosition(), Geometry.GetAbsoluteSize());
	}

	TUniquePtr<FHeadlessViewport> Viewport;
	UTestUserWidget* Screen = nullptr;
};

inline void PrintTo(const FSlateRect& Rect, std::ostream* Out)
{
	*Out << "[" << Rect.Left << ", " << Rect.Top << " .. " << Rect.Right << ", " << Rect.Bottom << "]";
}
