#include "TestReflectedTypes.h"

int32 UTestWidget::AddTo(int32 Amount, int32 Extra)
{
	Columns += Amount;
	LastQuantity = Extra;
	return Columns;
}

bool UTestWidget::Split(const FVector2D& Position, int32& OutX, int32& OutY) const
{
	OutX = int32(Position.X) / 10;
	OutY = int32(Position.Y) / 10;
	return Position.X >= 0.0 && Position.Y >= 0.0;
}

void UTestWidget::Deposit(FName ItemId, int32 Quantity, int32 X, int32 Y)
{
	LastItemId = ItemId;
	LastQuantity = Quantity;
	LastX = X;
	LastY = Y;
}

bool UTestWidget::Find(const FTestRecord& Key, FTestRecord& OutRecord) const
{
	for (const FTestRecord& Record : Records)
	{
		if (Record.Id == Key.Id)
		{
			OutRecord = Record;
			return true;
		}
	}
	return false;
}

void UTestWidget::Take(UTestWidget* Source, ETestLayout InLayout)
{
	LastSource = Source;
	Layout = InLayout;
}
