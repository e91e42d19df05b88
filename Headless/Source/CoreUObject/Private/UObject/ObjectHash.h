// Name lookup of live objects, for StaticFindObject and unique names.
#pragma once

#include "UObject/NameTypes.h"

#include <unordered_map>
#include <vector>

class UObjectBase;

struct FNameKeyHash
{
	size_t operator()(const FName& Name) const
	{
		return GetTypeHash(Name);
	}
};

class FUObjectHashTables
{
public:
	static FUObjectHashTables& Get();

	void Add(UObjectBase* Object);
	void Remove(UObjectBase* Object);
	const std::vector<UObjectBase*>* Find(const FName& Name) const;

private:
	std::unordered_map<FName, std::vector<UObjectBase*>, FNameKeyHash> ByName;
};
