#include "UObject/UObjectArray.h"

#include "UObject/UObjectBase.h"

FUObjectArray GUObjectArray;

void PurgeObjectsOnExit();

FUObjectArray::~FUObjectArray()
{
	PurgeObjectsOnExit();
}

int32 FUObjectArray::ObjectToIndex(const UObjectBase* Object) const
{
	return Object->GetUniqueID();
}

FUObjectItem* FUObjectArray::IndexToObject(int32 Index)
{
	return Index >= 0 && Index < int32(Objects.size()) ? &Objects[Index] : nullptr;
}

const FUObjectItem* FUObjectArray::IndexToObject(int32 Index) const
{
	return Index >= 0 && Index < int32(Objects.size()) ? &Objects[Index] : nullptr;
}

FUObjectItem* FUObjectArray::ObjectToObjectItem(const UObjectBase* Object)
{
	return Object ? IndexToObject(Object->GetUniqueID()) : nullptr;
}

bool FUObjectArray::IsValidIndex(const UObjectBase* Object) const
{
	const FUObjectItem* Item = Object ? IndexToObject(Object->GetUniqueID()) : nullptr;
	return Item && Item->Object == Object;
}

int32 FUObjectArray::AllocateSerialNumber(int32 Index)
{
	FUObjectItem* Item = IndexToObject(Index);
	check(Item);
	if (Item->SerialNumber == 0)
	{
		Item->SerialNumber = NextSerialNumber++;
	}
	return Item->SerialNumber;
}

int32 FUObjectArray::GetSerialNumber(int32 Index) const
{
	const FUObjectItem* Item = IndexToObject(Index);
	return Item ? Item->SerialNumber : 0;
}

void FUObjectArray::AllocateUObjectIndex(UObjectBase* Object)
{
	int32 Index;
	if (!FreeIndices.empty())
	{
		Index = FreeIndices.back();
		FreeIndices.pop_back();
	}
	else
	{
		Index = int32(Objects.size());
		Objects.emplace_back();
	}
	FUObjectItem& Item = Objects[Index];
	Item.Object = Object;
	Item.Flags = 0;
	Item.SerialNumber = 0;
	Object->InternalIndex = Index;
}

void FUObjectArray::FreeUObjectIndex(UObjectBase* Object)
{
	const int32 Index = Object->InternalIndex;
	FUObjectItem* Item = IndexToObject(Index);
	check(Item && Item->Object == Object);
	Item->Object = nullptr;
	Item->Flags = 0;
	Item->SerialNumber = 0;
	FreeIndices.push_back(Index);
	Object->InternalIndex = INDEX_NONE;
}
