#include "Widgets/SWindow.h"

#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

SWindow::SWindow()
	: Size(0.0, 0.0)
	, ScreenPosition(0.0, 0.0)
	, DPIScale(1.0f)
{
}

void SWindow::Construct(const FArguments& InArgs)
{
	Title = InArgs._Title;
	Size = InArgs._ClientSize;
	ScreenPosition = InArgs._ScreenPosition;
	DPIScale = InArgs._DPIScale;
	ChildSlot[InArgs._Content.Widget];
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

TSharedRef<const SWidget> SWindow::GetContent() const
{
	return ChildSlot.GetWidget();
}

FGeometry SWindow::GetWindowGeometryInScreen() const
{
	const FSlateLayoutTransform LocalToScreen = GetLocalToScreenTransform();
	return FGeometry::MakeRoot(TransformVector(Inverse(LocalToScreen), Size), LocalToScreen);
}

FGeometry SWindow::GetWindowGeometryInWindow() const
{
	const FSlateLayoutTransform LocalToWindow = GetLocalToWindowTransform();
	return FGeometry::MakeRoot(TransformVector(Inverse(LocalToWindow), Size), LocalToWindow);
}

int32 SWindow::PaintWindow(double CurrentTime, float DeltaTime, FSlateWindowElementList& OutDrawElements, const FWidgetStyle& InWidgetStyle,
	bool bParentEnabled)
{
	SlatePrepass(DPIScale);
	const FPaintArgs PaintArgs(nullptr, ScreenPosition, CurrentTime, DeltaTime);
	const FGeometry WindowGeometry = GetWindowGeometryInWindow();
	const FSlateRect CullingRect(FVector2D(0.0, 0.0), Size);
	return Paint(PaintArgs, WindowGeometry, CullingRect, OutDrawElements, 0, InWidgetStyle, bParentEnabled);
}
