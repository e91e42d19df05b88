#include "Components/SizeBox.h"

#include "Components/SizeBoxSlot.h"
#include "Widgets/Layout/SBox.h"

void USizeBox::SetWidthOverride(float InWidthOverride)
{
	bOverride_WidthOverride = true;
	WidthOverride = InWidthOverride;
	if (MySizeBox)
	{
		MySizeBox->SetWidthOverride(FOptionalSize(InWidthOverride));
	}
}

void USizeBox::ClearWidthOverride()
{
	bOverride_WidthOverride = false;
	if (MySizeBox)
	{
		MySizeBox->SetWidthOverride(FOptionalSize());
	}
}

void USizeBox::SetHeightOverride(float InHeightOverride)
{
	bOverride_HeightOverride = true;
	HeightOverride = InHeightOverride;
	if (MySizeBox)
	{
		MySizeBox->SetHeightOverride(FOptionalSize(InHeightOverride));
	}
}

void USizeBox::ClearHeightOverride()
{
	bOverride_HeightOverride = false;
	if (MySizeBox)
	{
		MySizeBox->SetHeightOverride(FOptionalSize());
	}
}

TSharedRef<SWidget> USizeBox::RebuildWidget()
{
	MySizeBox = SNew(SBox);
	if (USizeBoxSlot* ContentSlot = Cast<USizeBoxSlot>(GetContentSlot()))
	{
		ContentSlot->BuildSlot(MySizeBox.ToSharedRef());
	}
	return MySizeBox.ToSharedRef();
}

void USizeBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (MySizeBox)
	{
		MySizeBox->SetWidthOverride(bOverride_WidthOverride ? FOptionalSize(WidthOverride) : FOptionalSize());
		MySizeBox->SetHeightOverride(bOverride_HeightOverride ? FOptionalSize(HeightOverride) : FOptionalSize());
	}
}

void USizeBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MySizeBox.Reset();
}

UClass* USizeBox::GetSlotClass() const
{
	return USizeBoxSlot::StaticClass();
}

void USizeBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MySizeBox)
	{
		CastChecked<USizeBoxSlot>(InSlot)->BuildSlot(MySizeBox.ToSharedRef());
	}
}

void USizeBox::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (MySizeBox)
	{
		MySizeBox->SetContent(SNullWidget::NullWidget);
	}
}
