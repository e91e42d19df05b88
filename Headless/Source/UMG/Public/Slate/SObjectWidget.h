// The Slate widget of a user widget: it wraps the Slate widget of the user widget's root, so
// the user widget has a visibility and render transform of its own. The user widget holds it only
// weakly: once whoever took it lets go, it releases the user widget's whole Slate tree.
#pragma once

#include "UObject/WeakObjectPtrTemplates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class UUserWidget;

class SObjectWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SObjectWidget)
		{}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(UUserWidget*, WidgetObject)
	SLATE_END_ARGS()

	UMG_API virtual ~SObjectWidget() override;

	UMG_API void Construct(const FArguments& InArgs);

	UUserWidget* GetWidgetObject() const
	{
		return WidgetObject.Get();
	}

private:
	TWeakObjectPtr<UUserWidget> WidgetObject;
};
