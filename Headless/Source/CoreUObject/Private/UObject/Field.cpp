#include "UObject/Field.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

const FString* FMetaDataMap::Find(const FName& Key) const
{
	for (const std::pair<FName, FString>& Entry : Entries)
	{
		if (Entry.first == Key)
		{
			return &Entry.second;
		}
	}
	return nullptr;
}

void FMetaDataMap::Set(const FName& Key, const FString& Value)
{
	for (std::pair<FName, FString>& Entry : Entries)
	{
		if (Entry.first == Key)
		{
			Entry.second = Value;
			return;
		}
	}
	Entries.emplace_back(Key, Value);
}

void FMetaDataMap::Remove(const FName& Key)
{
	for (auto It = Entries.begin(); It != Entries.end(); ++It)
	{
		if (It->first == Key)
		{
			Entries.erase(It);
			return;
		}
	}
}

const FString& FMetaDataMap::Empty()
{
	static const FString EmptyString;
	return EmptyString;
}

FFieldClass::FFieldClass(const TCHAR* InName, FFieldClass* InSuperClass)
	: Name(InName)
	, SuperClass(InSuperClass)
{
}

FName FFieldVariant::GetFName() const
{
	return Object ? Object->GetFName() : (Field ? Field->GetFName() : FName());
}

FFieldClass* FField::StaticClass()
{
	static FFieldClass Instance(TEXT("Field"), nullptr);
	return &Instance;
}

FField::FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Owner(InOwner)
	, NamePrivate(InName)
	, FlagsPrivate(InObjectFlags)
{
}

FField::~FField() = default;

UObject* FField::GetOwnerUObject() const
{
	FFieldVariant Current = Owner;
	while (!Current.IsUObject() && Current.IsValid())
	{
		Current = Current.ToField()->Owner;
	}
	return Current.ToUObject();
}

UStruct* FField::GetOwnerStruct() const
{
	UObject* Object = GetOwnerUObject();
	return Object && Object->IsA(UStruct::StaticClass()) ? (UStruct*)Object : nullptr;
}

UClass* FField::GetOwnerClass() const
{
	UObject* Object = GetOwnerUObject();
	return Object && Object->IsA(UClass::StaticClass()) ? (UClass*)Object : nullptr;
}

FString FField::GetPathName() const
{
	FString Result;
	if (Owner.IsUObject())
	{
		Result = Owner.ToUObject()->GetPathName();
		Result += TEXT(":");
	}
	else if (Owner.IsValid())
	{
		Result = Owner.ToField()->GetPathName();
		Result += TEXT(":");
	}
	Result += GetName();
	return Result;
}

FString FField::GetFullName() const
{
	FString Result = GetClass()->GetName();
	Result += TEXT(" ");
	Result += GetPathName();
	return Result;
}

bool FField::HasMetaData(const TCHAR* Key) const
{
	return MetaData.Find(FName(Key)) != nullptr;
}

bool FField::HasMetaData(const FName& Key) const
{
	return MetaData.Find(Key) != nullptr;
}

const FString& FField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key));
}

const FString& FField::GetMetaData(const FName& Key) const
{
	const FString* Found = MetaData.Find(Key);
	return Found ? *Found : FMetaDataMap::Empty();
}

const FString* FField::FindMetaData(const TCHAR* Key) const
{
	return MetaData.Find(FName(Key));
}

const FString* FField::FindMetaData(const FName& Key) const
{
	return MetaData.Find(Key);
}

void FField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	MetaData.Set(FName(Key), FString(InValue));
}

void FField::SetMetaData(const FName& Key, const FString& InValue)
{
	MetaData.Set(Key, InValue);
}

void FField::RemoveMetaData(const TCHAR* Key)
{
	MetaData.Remove(FName(Key));
}

bool FField::GetBoolMetaData(const TCHAR* Key) const
{
	return GetMetaData(Key).Equals(FString(TEXT("true")), ESearchCase::IgnoreCase);
}
