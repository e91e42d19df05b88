// Key/value metadata of a type, field or property (Category, ToolTip, DisplayName, CPP_Default_*),
// kept in declared order.
#pragma once

#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

#include <utility>
#include <vector>

class COREUOBJECT_API FMetaDataMap
{
public:
	const FString* Find(const FName& Key) const;
	void Set(const FName& Key, const FString& Value);
	void Remove(const FName& Key);
	int32 Num() const
	{
		return int32(Entries.size());
	}
	const std::vector<std::pair<FName, FString>>& GetEntries() const
	{
		return Entries;
	}

	/** The value of a key that is absent. */
	static const FString& Empty();

private:
	std::vector<std::pair<FName, FString>> Entries;
};
