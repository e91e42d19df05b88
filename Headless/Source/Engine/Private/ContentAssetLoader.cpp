// Loads /Game/... assets from the project's Content directory, where the engine would load cooked
// packages. "/Game/Dir/Asset.Asset" is Content/Dir/Asset.json (a data table) or
// Content/Dir/Asset.png (a texture). A table file wraps the engine's JSON export of its rows with
// the row struct's path:
//
//     { "RowStruct": "/Script/Module.StructName", "Rows": [ { "Name": "Sword", ... }, ... ] }
//
// Each asset is made in a package named after its path, flagged as loaded objects are
// (RF_Public | RF_Standalone | RF_WasLoaded). As in a cooked game, RF_Standalone does not protect it
// from the collector: it lives while something references it.

#include "DataTableJSON.h"
#include "Dom/JsonObject.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "HAL/FileManager.h"
#include "Headless/AssetLoader.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PngDecoding.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogStreaming, Log, All);

namespace
{
	constexpr EObjectFlags LoadedAssetFlags = EObjectFlags(RF_Public | RF_Standalone | RF_WasLoaded | RF_LoadCompleted);

	UScriptStruct* FindRowStruct(const FString& Name)
	{
		if (Name.Contains(TEXT(".")))
		{
			return FindObject<UScriptStruct>(nullptr, *Name);
		}
		return FindFirstObject<UScriptStruct>(*Name);
	}

	class FContentAssetLoader final : public UE::Headless::IAssetLoader
	{
	public:
		virtual UObject* LoadAsset(const FSoftObjectPath& Path) override
		{
			FString Reason;
			UObject* Asset = TryLoadAsset(Path, Reason);
			if (Asset == nullptr)
			{
				UE_LOG(LogStreaming, Warning, TEXT("Failed to load '%s': %s"), *Path.ToString(), *Reason);
			}
			return Asset;
		}

	private:
		UObject* TryLoadAsset(const FSoftObjectPath& Path, FString& OutReason)
		{
			const FString PackageName = Path.GetLongPackageName();
			const FString ShortName = FPaths::GetCleanFilename(PackageName);
			const FString AssetName = Path.GetAssetName().IsEmpty() ? ShortName : Path.GetAssetName();
			FString RelativePath = PackageName;
			if (!RelativePath.RemoveFromStart(TEXT("/Game/"), ESearchCase::CaseSensitive) || RelativePath.IsEmpty())
			{
				OutReason = TEXT("only /Game/ paths name assets in the project's Content directory");
				return nullptr;
			}
			FString Collapsed = RelativePath;
			if (!FPaths::CollapseRelativeDirectories(Collapsed) || !Collapsed.Equals(RelativePath))
			{
				OutReason = TEXT("the path is not a plain package path");
				return nullptr;
			}
			if (!Path.GetSubPathString().IsEmpty() || !AssetName.Equals(ShortName))
			{
				OutReason = FString::Printf(TEXT("package '%s' holds only the asset '%s'"), *PackageName, *ShortName);
				return nullptr;
			}

			const FString BaseFilename = FPaths::ProjectContentDir() + RelativePath;
			if (FPaths::FileExists(BaseFilename + TEXT(".json")))
			{
				return LoadDataTable(BaseFilename + TEXT(".json"), PackageName, AssetName, OutReason);
			}
			if (FPaths::FileExists(BaseFilename + TEXT(".png")))
			{
				return LoadTexture(BaseFilename + TEXT(".png"), PackageName, AssetName, OutReason);
			}

			TArray<FString> Others;
			IFileManager::Get().FindFiles(Others, *(BaseFilename + TEXT(".*")), true, false);
			OutReason = Others.Num() > 0
				? FString::Printf(TEXT("'%s' is not an asset file (assets are .json data tables and .png textures)"), *Others[0])
				: FString::Printf(TEXT("there is no %s.json or %s.png"), *BaseFilename, *BaseFilename);
			return nullptr;
		}

		/** The package and the name for the new asset; null when something else already has that name. */
		UPackage* PrepareOuter(const FString& PackageName, const FString& AssetName, FString& OutReason)
		{
			UPackage* Package = CreatePackage(*PackageName);
			if (StaticFindObjectFast(nullptr, Package, FName(*AssetName)) != nullptr)
			{
				OutReason = TEXT("an object that is not a loadable asset already has this path");
				return nullptr;
			}
			return Package;
		}

		UObject* LoadDataTable(const FString& Filename, const FString& PackageName, const FString& AssetName, FString& OutReason)
		{
			FString Text;
			if (!FFileHelper::LoadFileToString(Text, *Filename))
			{
				OutReason = FString::Printf(TEXT("%s could not be read"), *Filename);
				return nullptr;
			}
			TSharedPtr<FJsonObject> Root;
			const TSharedRef<TJsonReader<TCHAR>> Reader = TJsonReaderFactory<TCHAR>::Create(Text);
			if (!FJsonSerializer::Deserialize(Reader, Root) || !Root.IsValid())
			{
				OutReason = FString::Printf(TEXT("%s is not a JSON object: %s"), *Filename, *Reader->GetErrorMessage());
				return nullptr;
			}
			FString RowStructName;
			const TArray<TSharedPtr<FJsonValue>>* Rows = nullptr;
			if (!Root->TryGetStringField(TEXT("RowStruct"), RowStructName) || !Root->TryGetArrayField(TEXT("Rows"), Rows))
			{
				OutReason = FString::Printf(TEXT("%s needs a \"RowStruct\" string and a \"Rows\" array"), *Filename);
				return nullptr;
			}
			UScriptStruct* RowStruct = FindRowStruct(RowStructName);
			if (RowStruct == nullptr)
			{
				OutReason = FString::Printf(TEXT("%s names the row struct '%s', which does not exist"), *Filename, *RowStructName);
				return nullptr;
			}

			UPackage* Package = PrepareOuter(PackageName, AssetName, OutReason);
			if (Package == nullptr)
			{
				return nullptr;
			}
			UDataTable* Table = NewObject<UDataTable>(Package, FName(*AssetName), LoadedAssetFlags);
			Table->RowStruct = RowStruct;
			TArray<FString> Problems;
			FDataTableImporterJSON(*Table, Problems).ReadTable(*Rows);
			for (const FString& Problem : Problems)
			{
				UE_LOG(LogDataTable, Warning, TEXT("%s: %s"), *Table->GetPathName(), *Problem);
			}
			Table->PostLoad();
			return Table;
		}

		UObject* LoadTexture(const FString& Filename, const FString& PackageName, const FString& AssetName, FString& OutReason)
		{
			TArray<uint8> Bytes;
			if (!FFileHelper::LoadFileToArray(Bytes, *Filename))
			{
				OutReason = FString::Printf(TEXT("%s could not be read"), *Filename);
				return nullptr;
			}
			int32 SizeX = 0;
			int32 SizeY = 0;
			TArray<uint8> Pixels;
			FString DecodeError;
			if (!UE::Engine::Private::DecodePngToRGBA8(Bytes, SizeX, SizeY, Pixels, DecodeError))
			{
				OutReason = FString::Printf(TEXT("%s is not a readable PNG: %s"), *Filename, *DecodeError);
				return nullptr;
			}

			UPackage* Package = PrepareOuter(PackageName, AssetName, OutReason);
			if (Package == nullptr)
			{
				return nullptr;
			}
			UTexture2D* Texture = NewObject<UTexture2D>(Package, FName(*AssetName), LoadedAssetFlags);
			Texture->SetHeadlessPixelsRGBA8(SizeX, SizeY, MoveTemp(Pixels));
			Texture->PostLoad();
			return Texture;
		}
	};

	// Installed while the Engine binary is loaded, as the engine's package loader is always there.
	struct FContentAssetLoaderRegistration
	{
		FContentAssetLoaderRegistration()
		{
			if (UE::Headless::GetAssetLoader() == nullptr)
			{
				UE::Headless::SetAssetLoader(&Loader);
			}
		}

		~FContentAssetLoaderRegistration()
		{
			if (UE::Headless::GetAssetLoader() == &Loader)
			{
				UE::Headless::SetAssetLoader(nullptr);
			}
		}

		FContentAssetLoader Loader;
	} ContentAssetLoaderRegistration;
}
