#include "Layout/Visibility.h"

const EVisibility EVisibility::Visible(EVisibility::VIS_Visible);
const EVisibility EVisibility::Collapsed(EVisibility::VIS_Collapsed);
const EVisibility EVisibility::Hidden(EVisibility::VIS_Hidden);
const EVisibility EVisibility::HitTestInvisible(EVisibility::VIS_HitTestInvisible);
const EVisibility EVisibility::SelfHitTestInvisible(EVisibility::VIS_SelfHitTestInvisible);
const EVisibility EVisibility::All(EVisibility::VIS_All);

FString EVisibility::ToString() const
{
	if (*this == Visible)
	{
		return TEXT("Visible");
	}
	if (*this == Collapsed)
	{
		return TEXT("Collapsed");
	}
	if (*this == Hidden)
	{
		return TEXT("Hidden");
	}
	if (*this == HitTestInvisible)
	{
		return TEXT("HitTestInvisible");
	}
	if (*this == SelfHitTestInvisible)
	{
		return TEXT("SelfHitTestInvisible");
	}
	return TEXT("All");
}
