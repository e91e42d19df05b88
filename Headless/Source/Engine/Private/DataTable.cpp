#include "Engine/DataTable.h"

#include "DataTableJSON.h"
#include "HAL/UnrealMemory.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY(LogDataTable);

void UDataTable::FinishDestroy()
{
	Super::FinishDestroy();
	EmptyTable();
}

void UDataTable::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(InThis, Collector);
	UDataTable* This = static_cast<UDataTable*>(InThis);
	const UScriptStruct* Struct = This->RowStruct;
	if (Struct == nullptr)
	{
		return;
	}
	const ICppStructOps* Ops = Struct->GetCppStructOps();
	const bool bStructAddsReferences = Ops && Ops->HasAddStructReferencedObjects();
	for (const TPair<FName, uint8*>& Pair : This->RowMap)
	{
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			if (!It->ContainsObjectReference())
			{
				continue;
			}
			for (int32 Index = 0; Index < It->ArrayDim; ++Index)
			{
				It->AddReferencedObjectsInValue(It->ContainerPtrToValuePtr<void>(Pair.Value, Index), Collector, This);
			}
		}
		if (bStructAddsReferences)
		{
			Ops->AddStructReferencedObjects(Pair.Value, Collector);
		}
	}
}

FString UDataTable::GetRowStructPathName() const
{
	return RowStruct ? RowStruct->GetPathName() : FString();
}

TArray<FName> UDataTable::GetRowNames() const
{
	TArray<FName> Names;
	Names.Reserve(RowMap.Num());
	for (const TPair<FName, uint8*>& Pair : RowMap)
	{
		Names.Add(Pair.Key);
	}
	return Names;
}

uint8* UDataTable::FindRowUnchecked(FName RowName) const
{
	if (RowStruct == nullptr)
	{
		return nullptr;
	}
	uint8* const* Found = RowMap.Find(RowName);
	return Found ? *Found : nullptr;
}

uint8* UDataTable::AllocateRow() const
{
	check(RowStruct != nullptr);
	uint8* RowData = (uint8*)FMemory::Malloc(SIZE_T(FMath::Max(RowStruct->GetStructureSize(), 1)), uint32(RowStruct->GetMinAlignment()));
	RowStruct->InitializeStruct(RowData);
	return RowData;
}

void UDataTable::FreeRow(uint8* RowData) const
{
	check(RowStruct != nullptr);
	RowStruct->DestroyStruct(RowData);
	FMemory::Free(RowData);
}

void UDataTable::EmptyTable()
{
	// Without a struct there is no way to destroy a row; the table never holds rows without one.
	check(RowStruct != nullptr || RowMap.Num() == 0);
	for (const TPair<FName, uint8*>& Pair : RowMap)
	{
		FreeRow(Pair.Value);
	}
	RowMap.Empty();
}

void UDataTable::RemoveRow(FName RowName)
{
	uint8* RowData = nullptr;
	if (RowMap.RemoveAndCopyValue(RowName, RowData))
	{
		FreeRow(RowData);
	}
}

uint8* UDataTable::AddDefaultRow(FName RowName)
{
	RemoveRow(RowName);
	uint8* RowData = AllocateRow();
	RowMap.Add(RowName, RowData);
	return RowData;
}

void UDataTable::AddRow(FName RowName, const uint8* RowData, const UScriptStruct* RowType)
{
	if (RowName.IsNone() || RowData == nullptr || RowStruct == nullptr || RowType == nullptr || !RowType->IsChildOf(RowStruct))
	{
		UE_LOG(LogDataTable, Error, TEXT("UDataTable::AddRow : cannot add row '%s' to DataTable '%s': the row is not a '%s'."),
			*RowName.ToString(), *GetPathName(), RowStruct ? *RowStruct->GetName() : TEXT("None"));
		return;
	}
	RowStruct->CopyScriptStruct(AddDefaultRow(RowName), RowData);
}

void UDataTable::AddRow(FName RowName, const FTableRowBase& RowData)
{
	AddRow(RowName, reinterpret_cast<const uint8*>(&RowData), RowStruct);
}

TArray<FString> UDataTable::CreateTableFromJSONString(const FString& InString)
{
	TArray<FString> Problems;
	if (RowStruct == nullptr)
	{
		Problems.Add(TEXT("No RowStruct specified."));
		return Problems;
	}
	if (InString.IsEmpty())
	{
		Problems.Add(TEXT("Input data is empty."));
		return Problems;
	}
	FDataTableImporterJSON(*this, Problems).ReadTable(InString);
	return Problems;
}
