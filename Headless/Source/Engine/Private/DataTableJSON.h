// Reads the engine's JSON export of a data table into a UDataTable: an array of objects, each with
// "Name" and one field per row-struct property. Values are taken as the engine writes them:
// numbers, booleans and strings; enums by name; object references as paths ("/Game/Dir/A.A",
// "Texture2D'/Game/Dir/A.A'" or "None"), hard references loaded at once; nested structs as objects
// or as engine text; arrays as arrays.
#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonValue.h"

class FJsonObject;
class FProperty;
class UDataTable;
class UStruct;

class FDataTableImporterJSON
{
public:
	FDataTableImporterJSON(UDataTable& InDataTable, TArray<FString>& OutProblems);

	/** Parses the text first; a document that is not a JSON array adds a problem and leaves the table empty. */
	bool ReadTable(const FString& JsonText);
	bool ReadTable(const TArray<TSharedPtr<FJsonValue>>& Rows);

private:
	void ReadRow(const FJsonObject& RowObject, int32 RowIndex);
	void ReadStruct(const FJsonObject& Object, const UStruct* Struct, uint8* Data, const FString& Where);
	bool ReadValue(const FJsonValue& Value, const FProperty* Property, void* Data, const FString& Where);
	bool ReadObjectReference(const FString& Text, const FProperty* Property, void* Data, const FString& Where);
	bool ImportFromText(const FString& Text, const FProperty* Property, void* Data, const FString& Where);

	UDataTable& DataTable;
	TArray<FString>& Problems;
};
