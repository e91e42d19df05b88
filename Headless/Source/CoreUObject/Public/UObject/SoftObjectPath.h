// FSoftObjectPath: the path of an object that may not be loaded ("/Game/Dir/Asset.Asset").
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UObject;
class FUObjectSerializeContext;

/** "/Game/Dir/Asset" and "Asset": the package and the asset inside it. */
struct COREUOBJECT_API FTopLevelAssetPath
{
	FTopLevelAssetPath() = default;
	FTopLevelAssetPath(FName InPackageName, FName InAssetName)
		: PackageName(InPackageName)
		, AssetName(InAssetName)
	{
	}
	explicit FTopLevelAssetPath(const FString& Path);

	FName GetPackageName() const
	{
		return PackageName;
	}
	FName GetAssetName() const
	{
		return AssetName;
	}
	bool IsNull() const
	{
		return PackageName.IsNone();
	}
	bool IsValid() const
	{
		return !PackageName.IsNone();
	}
	FString ToString() const;

	bool operator==(const FTopLevelAssetPath& Other) const
	{
		return PackageName == Other.PackageName && AssetName == Other.AssetName;
	}

	friend uint32 GetTypeHash(const FTopLevelAssetPath& Path)
	{
		return HashCombine(GetTypeHash(Path.PackageName), GetTypeHash(Path.AssetName));
	}

private:
	FName PackageName;
	FName AssetName;
};

struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() = default;
	FSoftObjectPath(const FString& Path)
	{
		SetPath(Path);
	}
	FSoftObjectPath(const TCHAR* Path)
	{
		SetPath(FString(Path));
	}
	FSoftObjectPath(FTopLevelAssetPath InAssetPath, FString InSubPathString = FString())
		: AssetPath(InAssetPath)
		, SubPathString(InSubPathString)
	{
	}
	FSoftObjectPath(const UObject* InObject);

	/** Accepts "/Pkg/Path.Asset", "/Pkg/Path.Asset:Sub" and the quoted form "Class'/Pkg/Path.Asset'". */
	void SetPath(const FString& Path);
	void Reset()
	{
		AssetPath = FTopLevelAssetPath();
		SubPathString = FString();
	}

	FString ToString() const;
	FString GetAssetPathString() const
	{
		return AssetPath.ToString();
	}
	FTopLevelAssetPath GetAssetPath() const
	{
		return AssetPath;
	}
	FString GetLongPackageName() const
	{
		return AssetPath.GetPackageName().ToString();
	}
	FName GetLongPackageFName() const
	{
		return AssetPath.GetPackageName();
	}
	FString GetAssetName() const
	{
		return AssetPath.GetAssetName().ToString();
	}
	FName GetAssetFName() const
	{
		return AssetPath.GetAssetName();
	}
	const FString& GetSubPathString() const
	{
		return SubPathString;
	}

	bool IsNull() const
	{
		return AssetPath.IsNull();
	}
	bool IsValid() const
	{
		return AssetPath.IsValid();
	}
	bool IsAsset() const
	{
		return AssetPath.IsValid() && SubPathString.IsEmpty();
	}

	/** The object with this path if it is in memory; never loads. */
	UObject* ResolveObject() const;

	/** Resolves, or else asks the asset loader to bring the object in, then resolves. */
	UObject* TryLoad(FUObjectSerializeContext* InLoadContext = nullptr) const;

	bool operator==(const FSoftObjectPath& Other) const
	{
		return AssetPath == Other.AssetPath && SubPathString == Other.SubPathString;
	}
	bool operator!=(const FSoftObjectPath& Other) const
	{
		return !(*this == Other);
	}

	friend uint32 GetTypeHash(const FSoftObjectPath& Path)
	{
		return GetTypeHash(Path.AssetPath);
	}

	bool ExportTextItem(FString& ValueStr) const;
	bool ImportTextItem(const TCHAR*& Buffer);

private:
	FTopLevelAssetPath AssetPath;
	FString SubPathString;
};

struct FSoftClassPath : public FSoftObjectPath
{
	using FSoftObjectPath::FSoftObjectPath;
};
