// Writes into a byte array that the caller owns, growing it as needed.
#pragma once

#include "Containers/Array.h"
#include "HAL/UnrealMemory.h"
#include "Serialization/Archive.h"
#include "UObject/NameTypes.h"

class FMemoryWriter : public FArchive
{
public:
	/** Writes from the start of Bytes, or from its end when bSetOffset is set. */
	explicit FMemoryWriter(TArray<uint8>& InBytes, bool bIsPersistent = false, bool bSetOffset = false, const FName InArchiveName = NAME_None)
		: Bytes(InBytes)
		, Offset(bSetOffset ? InBytes.Num() : 0)
		, ArchiveName(InArchiveName)
	{
		SetIsSaving(true);
	}

	virtual void Serialize(void* Data, int64 Num) override
	{
		if (Num <= 0)
		{
			return;
		}
		const int64 End = Offset + Num;
		if (End > Bytes.Num())
		{
			Bytes.AddUninitialized(static_cast<int32>(End - Bytes.Num()));
		}
		FMemory::Memcpy(Bytes.GetData() + Offset, Data, static_cast<SIZE_T>(Num));
		Offset = End;
	}

	virtual int64 Tell() override
	{
		return Offset;
	}

	virtual int64 TotalSize() override
	{
		return Bytes.Num();
	}

	void Seek(int64 InPos)
	{
		Offset = InPos;
	}

	FName GetArchiveName() const
	{
		return ArchiveName;
	}

private:
	TArray<uint8>& Bytes;
	int64 Offset;
	FName ArchiveName;
};
