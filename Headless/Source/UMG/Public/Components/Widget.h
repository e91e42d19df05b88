#pragma once

#include "CoreMinimal.h"
#include "Components/SlateWrapperTypes.h"
#include "Components/Visual.h"
#include "Layout/Geometry.h"
#include "Slate/WidgetTransform.h"
#include "Templates/SharedPointer.h"

#include "Widget.generated.h"

class SWidget;
class UPanelSlot;
class UPanelWidget;

/**
 * The base class of every UMG widget. A widget builds its Slate widget when first asked for it
 * (TakeWidget) and keeps only a weak reference to it: the Slate widget lives while something on
 * screen (a parent Slate widget, the viewport) or the widget's own strong handle holds it, and is
 * released when the widget leaves its parent or the screen.
 */
UCLASS(Abstract)
class UMG_API UWidget : public UVisual
{
	GENERATED_BODY()

public:
	UWidget(const FObjectInitializer& ObjectInitializer);

	/** The slot that places this widget in its parent panel; null when the widget has no parent. */
	UPROPERTY(Instanced)
	TObjectPtr<UPanelSlot> Slot;

	/** Tooltip text shown when the cursor hovers over the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior")
	FText ToolTipText;

	/** The render transform of the widget: applied after layout, it moves how the widget is drawn and hit, not the space it takes. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Transform")
	FWidgetTransform RenderTransform;

	/** The point the render transform acts about, in normalized local space: (0.5, 0.5) is the centre. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Transform")
	FVector2D RenderTransformPivot;

	ESlateVisibility GetVisibility() const;
	virtual void SetVisibility(ESlateVisibility InVisibility);

	float GetRenderOpacity() const
	{
		return RenderOpacity;
	}

	void SetRenderOpacity(float InOpacity);

	/** The tooltip text for the widget. */
	FText GetToolTipText() const
	{
		return ToolTipText;
	}

	void SetToolTipText(const FText& InToolTipText);

	void SetRenderTransform(FWidgetTransform InTransform);
	void SetRenderScale(FVector2D Scale);
	void SetRenderShear(FVector2D Shear);
	void SetRenderTransformAngle(float Angle);
	float GetRenderTransformAngle() const;
	void SetRenderTranslation(FVector2D Translation);

	/** The size the Slate widget asked for at its last layout; zero before it has one. */
	FVector2D GetDesiredSize() const;
	void SetRenderTransformPivot(FVector2D Pivot);

	/** The panel this widget is in, through its slot. */
	UPanelWidget* GetParent() const;

	/** Takes the widget out of its parent panel; its Slate widget is released. */
	virtual void RemoveFromParent();

	/** The Slate widget, built on first call; later calls return the same one while it lives. */
	TSharedRef<SWidget> TakeWidget();

	/** The Slate widget once a window has laid it out, until it is released (the widget leaves the screen); else null. */
	TSharedPtr<SWidget> GetCachedWidget() const;

	/** Where the widget was last arranged, in desktop space; empty when it has no Slate widget. */
	const FGeometry& GetCachedGeometry() const;
	const FGeometry& GetTickSpaceGeometry() const;
	const FGeometry& GetPaintSpaceGeometry() const;

	/** True while the widget is shown in the editor's designer; never in a running game. */
	bool IsDesignTime() const;

	/** Pushes this widget's properties to its Slate widget. */
	virtual void SynchronizeProperties();

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	static EVisibility ConvertSerializedVisibilityToRuntime(ESlateVisibility Input);
	static ESlateVisibility ConvertRuntimeToSerializedVisibility(const EVisibility& Input);

protected:
	/** Builds a new Slate widget for this widget. */
	virtual TSharedRef<SWidget> RebuildWidget();

	/** Called after a new Slate widget has been built and synchronized. */
	virtual void OnWidgetRebuilt();

	/** The visibility of the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Behavior")
	ESlateVisibility Visibility;

	/** The opacity of the widget and everything in it. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	float RenderOpacity;

private:
	void UpdateRenderTransform();

	TWeakPtr<SWidget> MyWidget;
};
