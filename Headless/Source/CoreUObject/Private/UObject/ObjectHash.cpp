#include "ObjectHash.h"

#include "UObject/UObjectBase.h"

#include <algorithm>

FUObjectHashTables& FUObjectHashTables::Get()
{
	static FUObjectHashTables Instance;
	return Instance;
}

void FUObjectHashTables::Add(UObjectBase* Object)
{
	ByName[Object->GetFName()].push_back(Object);
}

void FUObjectHashTables::Remove(UObjectBase* Object)
{
	auto Found = ByName.find(Object->GetFName());
	if (Found != ByName.end())
	{
		std::vector<UObjectBase*>& Bucket = Found->second;
		Bucket.erase(std::remove(Bucket.begin(), Bucket.end(), Object), Bucket.end());
		if (Bucket.empty())
		{
			ByName.erase(Found);
		}
	}
}

const std::vector<UObjectBase*>* FUObjectHashTables::Find(const FName& Name) const
{
	auto Found = ByName.find(Name);
	return Found != ByName.end() ? &Found->second : nullptr;
}
