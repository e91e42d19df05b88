// UPackage: the outermost object of a path ("/Script/Module", "/Game/Dir/Asset", "/Engine/Transient").
#pragma once

#include "UObject/Object.h"

class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_CLASS_INTRINSIC(UPackage, UObject, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	UPackage() = default;

	EPackageFlags GetPackageFlags() const
	{
		return PackageFlags;
	}
	void SetPackageFlags(EPackageFlags NewFlags)
	{
		PackageFlags |= NewFlags;
	}
	void ClearPackageFlags(EPackageFlags NewFlags)
	{
		PackageFlags &= ~NewFlags;
	}
	bool HasAnyPackageFlags(EPackageFlags FlagsToCheck) const
	{
		return (PackageFlags & FlagsToCheck) != 0;
	}

private:
	EPackageFlags PackageFlags = PKG_None;
};

COREUOBJECT_API UClass* Z_Construct_UClass_UPackage_NoRegister();
