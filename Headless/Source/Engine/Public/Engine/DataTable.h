#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#include "DataTable.generated.h"

class UDataTable;

ENGINE_API DECLARE_LOG_CATEGORY_EXTERN(LogDataTable, Log, All);

/** The base of every struct a data table holds as its rows. */
USTRUCT(meta = (BlueprintInternalUseOnly = "true"))
struct ENGINE_API FTableRowBase
{
	GENERATED_BODY()

	FTableRowBase()
	{
	}

	virtual ~FTableRowBase()
	{
	}

	/** Called on each row once a whole table has been imported; problems added here are reported with the import's. */
	virtual void OnPostDataImport(const UDataTable* InDataTable, const FName InRowName, TArray<FString>& OutCollectedImportProblems)
	{
	}

	virtual void OnDataTableChanged(const UDataTable* InDataTable, const FName InRowName)
	{
	}
};

/**
 * Rows of one reflected struct, each under its own name. Row names compare without regard to case,
 * as names do. Rows are made and destroyed through the row struct, and the object references they
 * hold keep their objects alive.
 */
UCLASS(MinimalAPI, BlueprintType)
class UDataTable : public UObject
{
	GENERATED_BODY()

	friend class FDataTableImporterJSON;

public:
	/** The struct every row is an instance of. */
	UPROPERTY(VisibleAnywhere, Category = "DataTable", meta = (DisplayThumbnail = "false"))
	TObjectPtr<UScriptStruct> RowStruct;

	ENGINE_API virtual void FinishDestroy() override;
	ENGINE_API static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	virtual const TMap<FName, uint8*>& GetRowMap() const
	{
		return RowMap;
	}

	virtual const TMap<FName, uint8*>& GetRowMap()
	{
		return RowMap;
	}

	const UScriptStruct* GetRowStruct() const
	{
		return RowStruct;
	}

	/** The path of the row struct ("/Script/Module.Struct"); empty when there is none. */
	ENGINE_API FString GetRowStructPathName() const;

	/** Names in the order the rows were added. */
	ENGINE_API TArray<FName> GetRowNames() const;

	/** The row's memory, laid out as RowStruct; null when there is no such row. */
	ENGINE_API uint8* FindRowUnchecked(FName RowName) const;

	ENGINE_API void EmptyTable();
	ENGINE_API void RemoveRow(FName RowName);
	/** Copies RowData (an instance of RowType, which must be RowStruct or a struct derived from it) into the row, replacing any row of that name. */
	ENGINE_API void AddRow(FName RowName, const uint8* RowData, const UScriptStruct* RowType);
	/** RowData must be an instance of RowStruct. */
	ENGINE_API void AddRow(FName RowName, const FTableRowBase& RowData);

	/**
	 * Replaces the rows with those of the engine's JSON export of a table: an array of objects, each
	 * with "Name" and one field per property of the row struct. Returns the problems found; rows are
	 * still read when some of their fields are missing or wrong.
	 */
	ENGINE_API TArray<FString> CreateTableFromJSONString(const FString& InString);

	template <class T>
	T* FindRow(FName RowName, const TCHAR* ContextString, bool bWarnIfRowMissing = true) const
	{
		if (RowStruct == nullptr)
		{
			UE_LOG(LogDataTable, Error, TEXT("UDataTable::FindRow : '%s' specified no row for DataTable '%s'."), ContextString, *GetPathName());
			return nullptr;
		}
		if (!RowStruct->IsChildOf(T::StaticStruct()))
		{
			UE_CLOG(bWarnIfRowMissing, LogDataTable, Error, TEXT("UDataTable::FindRow : '%s' specified incorrect type for DataTable '%s'."), ContextString, *GetPathName());
			return nullptr;
		}
		if (RowName.IsNone())
		{
			UE_CLOG(bWarnIfRowMissing, LogDataTable, Warning, TEXT("UDataTable::FindRow : '%s' requested invalid row 'None' from DataTable '%s'."), ContextString, *GetPathName());
			return nullptr;
		}
		uint8* RowData = FindRowUnchecked(RowName);
		if (RowData == nullptr)
		{
			UE_CLOG(bWarnIfRowMissing, LogDataTable, Warning, TEXT("UDataTable::FindRow : '%s' requested row '%s' not in DataTable '%s'."), ContextString, *RowName.ToString(), *GetPathName());
			return nullptr;
		}
		return reinterpret_cast<T*>(RowData);
	}

	template <class T>
	T* FindRow(FName RowName, const FString& ContextString, bool bWarnIfRowMissing = true) const
	{
		return FindRow<T>(RowName, *ContextString, bWarnIfRowMissing);
	}

	template <class T>
	void GetAllRows(const TCHAR* ContextString, TArray<T*>& OutRowArray) const
	{
		if (RowStruct == nullptr || !RowStruct->IsChildOf(T::StaticStruct()))
		{
			UE_LOG(LogDataTable, Error, TEXT("UDataTable::GetAllRows : '%s' specified incorrect type for DataTable '%s'."), ContextString, *GetPathName());
			return;
		}
		OutRowArray.Reserve(OutRowArray.Num() + RowMap.Num());
		for (const TPair<FName, uint8*>& Pair : RowMap)
		{
			OutRowArray.Add(reinterpret_cast<T*>(Pair.Value));
		}
	}

	template <class T>
	void ForeachRow(const TCHAR* ContextString, TFunctionRef<void(const FName& Key, const T& Value)> Predicate) const
	{
		if (RowStruct == nullptr || !RowStruct->IsChildOf(T::StaticStruct()))
		{
			UE_LOG(LogDataTable, Error, TEXT("UDataTable::ForeachRow : '%s' specified incorrect type for DataTable '%s'."), ContextString, *GetPathName());
			return;
		}
		for (const TPair<FName, uint8*>& Pair : RowMap)
		{
			Predicate(Pair.Key, *reinterpret_cast<const T*>(Pair.Value));
		}
	}

protected:
	/** Row memory is allocated and constructed by the table, through RowStruct. */
	TMap<FName, uint8*> RowMap;

private:
	uint8* AllocateRow() const;
	void FreeRow(uint8* RowData) const;
	/** Makes an empty row (default values) under RowName, replacing any row of that name. */
	uint8* AddDefaultRow(FName RowName);
};
