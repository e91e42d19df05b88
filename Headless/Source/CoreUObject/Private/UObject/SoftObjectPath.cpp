#include "UObject/SoftObjectPath.h"

#include "Headless/AssetLoader.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"

namespace
{
	UE::Headless::IAssetLoader*& AssetLoaderSlot()
	{
		static UE::Headless::IAssetLoader* Loader = nullptr;
		return Loader;
	}

	int32 FindLast(const FString& Text, TCHAR Char)
	{
		for (int32 Index = Text.Len() - 1; Index >= 0; --Index)
		{
			if ((*Text)[Index] == Char)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	int32 FindFirst(const FString& Text, TCHAR Char)
	{
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			if ((*Text)[Index] == Char)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
}

namespace UE::Headless
{
	void SetAssetLoader(IAssetLoader* Loader)
	{
		AssetLoaderSlot() = Loader;
	}

	IAssetLoader* GetAssetLoader()
	{
		return AssetLoaderSlot();
	}
}

FTopLevelAssetPath::FTopLevelAssetPath(const FString& Path)
{
	const int32 Dot = FindFirst(Path, u'.');
	if (Dot == INDEX_NONE)
	{
		PackageName = FName(*Path);
		return;
	}
	PackageName = FName(*Path.Left(Dot));
	AssetName = FName(*Path.Mid(Dot + 1));
}

FString FTopLevelAssetPath::ToString() const
{
	if (PackageName.IsNone())
	{
		return FString();
	}
	FString Result = PackageName.ToString();
	if (!AssetName.IsNone())
	{
		Result += TEXT(".");
		Result += AssetName.ToString();
	}
	return Result;
}

FSoftObjectPath::FSoftObjectPath(const UObject* InObject)
{
	if (InObject)
	{
		SetPath(InObject->GetPathName());
	}
}

void FSoftObjectPath::SetPath(const FString& InPath)
{
	Reset();
	FString Path = InPath;
	Path.TrimStartAndEndInline();
	// Class'/Game/Dir/Asset.Asset'
	const int32 Quote = FindFirst(Path, u'\'');
	if (Quote != INDEX_NONE)
	{
		const int32 Close = FindLast(Path, u'\'');
		Path = Close > Quote ? Path.Mid(Quote + 1, Close - Quote - 1) : FString();
	}
	if (Path.IsEmpty() || Path.Equals(FString(TEXT("None")), ESearchCase::IgnoreCase))
	{
		return;
	}
	const int32 Colon = FindFirst(Path, u':');
	if (Colon != INDEX_NONE)
	{
		SubPathString = Path.Mid(Colon + 1);
		Path = Path.Left(Colon);
	}
	AssetPath = FTopLevelAssetPath(Path);
}

FString FSoftObjectPath::ToString() const
{
	FString Result = AssetPath.ToString();
	if (!SubPathString.IsEmpty())
	{
		Result += TEXT(":");
		Result += SubPathString;
	}
	return Result;
}

UObject* FSoftObjectPath::ResolveObject() const
{
	if (IsNull())
	{
		return nullptr;
	}
	return StaticFindObject(nullptr, nullptr, *ToString(), false);
}

UObject* FSoftObjectPath::TryLoad(FUObjectSerializeContext* InLoadContext) const
{
	if (IsNull())
	{
		return nullptr;
	}
	if (UObject* Found = ResolveObject())
	{
		return Found;
	}
	if (UE::Headless::IAssetLoader* Loader = UE::Headless::GetAssetLoader())
	{
		if (UObject* Loaded = Loader->LoadAsset(*this))
		{
			return ResolveObject() ? ResolveObject() : Loaded;
		}
	}
	return nullptr;
}

bool FSoftObjectPath::ExportTextItem(FString& ValueStr) const
{
	ValueStr += IsNull() ? FString(TEXT("None")) : ToString();
	return true;
}

bool FSoftObjectPath::ImportTextItem(const TCHAR*& Buffer)
{
	while (*Buffer == u' ' || *Buffer == u'\t')
	{
		++Buffer;
	}
	const TCHAR* Start = Buffer;
	bool bQuoted = *Buffer == u'"';
	if (bQuoted)
	{
		++Start;
		++Buffer;
		while (*Buffer && *Buffer != u'"')
		{
			++Buffer;
		}
	}
	else
	{
		while (*Buffer && *Buffer != u',' && *Buffer != u')' && *Buffer != u' ')
		{
			++Buffer;
		}
	}
	SetPath(FString(int32(Buffer - Start), Start));
	if (bQuoted && *Buffer == u'"')
	{
		++Buffer;
	}
	return true;
}

FSoftObjectPtr::FSoftObjectPtr(const UObject* Object)
	: ObjectPath(Object)
	, Cached(Object)
{
}

UObject* FSoftObjectPtr::Get() const
{
	if (UObject* Object = Cached.Get())
	{
		return Object;
	}
	UObject* Resolved = ObjectPath.ResolveObject();
	Cached = Resolved;
	return Resolved;
}

UObject* FSoftObjectPtr::LoadSynchronous() const
{
	if (UObject* Object = Get())
	{
		return Object;
	}
	UObject* Loaded = ObjectPath.TryLoad();
	Cached = Loaded;
	return Loaded;
}
