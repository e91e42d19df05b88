// The base of everything that reads or writes a stream of bytes. Only the part that writers of text
// and bytes use: the direction, Serialize and the error flag.
#pragma once

#include "HAL/Platform.h"

class CORE_API FArchive
{
public:
	FArchive() = default;
	virtual ~FArchive() = default;

	FArchive(const FArchive&) = default;
	FArchive& operator=(const FArchive&) = default;

	/** Moves Length bytes between V and the stream: out of V when saving, into V when loading. */
	virtual void Serialize(void* V, int64 Length)
	{
	}

	/** The position in the stream, in bytes; INDEX_NONE for a stream without one. */
	virtual int64 Tell()
	{
		return INDEX_NONE;
	}

	virtual int64 TotalSize()
	{
		return INDEX_NONE;
	}

	/** Flushes what is pending; false once an error happened. */
	virtual bool Close()
	{
		return !ArIsError;
	}

	bool IsLoading() const
	{
		return ArIsLoading;
	}

	bool IsSaving() const
	{
		return ArIsSaving;
	}

	bool IsError() const
	{
		return ArIsError;
	}

	bool GetError() const
	{
		return ArIsError;
	}

	void SetError()
	{
		ArIsError = true;
	}

	void ClearError()
	{
		ArIsError = false;
	}

	void SetIsLoading(bool bIsLoading)
	{
		ArIsLoading = bIsLoading;
	}

	void SetIsSaving(bool bIsSaving)
	{
		ArIsSaving = bIsSaving;
	}

private:
	bool ArIsLoading = false;
	bool ArIsSaving = false;
	bool ArIsError = false;
};
