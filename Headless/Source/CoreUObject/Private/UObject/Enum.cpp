#include "UObject/Class.h"

namespace
{
	FString ShortName(const FString& FullName)
	{
		const TCHAR* Text = *FullName;
		const TCHAR* Start = Text;
		for (const TCHAR* Char = Text; *Char; ++Char)
		{
			if (Char[0] == u':' && Char[1] == u':')
			{
				Start = Char + 2;
			}
		}
		return FString(Start);
	}
}

void UEnum::SetEnums(const TArray<TPair<FName, int64>>& InNames, ECppForm::Type InCppForm, bool bAddMaxKeyIfMissing)
{
	Names = InNames;
	CppForm = InCppForm;
	if (bAddMaxKeyIfMissing)
	{
		int64 MaxValue = -1;
		for (const TPair<FName, int64>& Entry : Names)
		{
			MaxValue = std::max(MaxValue, Entry.Value);
		}
		FString MaxName;
		if (CppForm != ECppForm::Regular)
		{
			MaxName += GetName();
			MaxName += TEXT("::");
		}
		MaxName += GetName();
		MaxName += TEXT("_MAX");
		Names.Add(TPair<FName, int64>(FName(*MaxName), MaxValue + 1));
	}
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName();
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Value : INDEX_NONE;
}

FString UEnum::GetNameStringByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? ShortName(Names[Index].Key.ToString()) : FString();
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Value == InValue)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int32 UEnum::GetIndexByName(FName InName) const
{
	const FString Wanted = InName.ToString();
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Key == InName || ShortName(Names[Index].Key.ToString()).Equals(Wanted, ESearchCase::IgnoreCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetDisplayNameTextByIndex(int32 Index) const
{
	if (!Names.IsValidIndex(Index))
	{
		return FText::GetEmpty();
	}
	const FString DisplayName = GetMetaData(TEXT("DisplayName"), Index);
	return FText::FromString(DisplayName.IsEmpty() ? GetNameStringByIndex(Index) : DisplayName);
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

int64 UEnum::GetValueByName(FName InName) const
{
	return GetValueByIndex(GetIndexByName(InName));
}

int64 UEnum::GetValueByNameString(const FString& InName) const
{
	return GetValueByName(FName(*InName));
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 MaxValue = 0;
	for (const TPair<FName, int64>& Entry : Names)
	{
		MaxValue = std::max(MaxValue, Entry.Value);
	}
	return MaxValue;
}

bool UEnum::IsValidEnumValue(int64 InValue) const
{
	return GetIndexByValue(InValue) != INDEX_NONE;
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	if (NameIndex == INDEX_NONE)
	{
		return UField::GetMetaData(Key);
	}
	FString FullKey = GetNameStringByIndex(NameIndex);
	FullKey += TEXT(".");
	FullKey += Key;
	return UField::GetMetaData(*FullKey);
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	if (NameIndex == INDEX_NONE)
	{
		return UField::HasMetaData(Key);
	}
	FString FullKey = GetNameStringByIndex(NameIndex);
	FullKey += TEXT(".");
	FullKey += Key;
	return UField::HasMetaData(*FullKey);
}

void UEnum::SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex)
{
	if (NameIndex == INDEX_NONE)
	{
		UField::SetMetaData(Key, InValue);
		return;
	}
	FString FullKey = GetNameStringByIndex(NameIndex);
	FullKey += TEXT(".");
	FullKey += Key;
	UField::SetMetaData(*FullKey, InValue);
}
