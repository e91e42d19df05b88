#include "Modules/ModuleManager.h"

FModuleManager& FModuleManager::Get()
{
	// Registrants run during static initialisation of every module binary, so the manager must
	// exist before any of them, whatever the order in which the binaries load.
	static FModuleManager Manager;
	return Manager;
}

void FModuleManager::RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializer)
{
	FModuleInfo& Info = Modules.FindOrAdd(InModuleName);
	Info.Initializer = InInitializer;
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags)
{
	FModuleInfo* Info = Modules.Find(InModuleName);
	if (Info == nullptr || !Info->Initializer)
	{
		return nullptr;
	}
	if (!Info->Module)
	{
		Info->Module.Reset(Info->Initializer());
		Info->LoadOrder = NextLoadOrder++;
		Info->Module->StartupModule();
	}
	return Info->Module.Get();
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* Module = LoadModule(InModuleName);
	check(Module != nullptr);
	return *Module;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	FModuleInfo* Info = Modules.Find(InModuleName);
	if (Info == nullptr || !Info->Module)
	{
		return false;
	}
	Info->Module->PreUnloadCallback();
	Info->Module->ShutdownModule();
	Info->Module.Reset();
	Info->LoadOrder = INDEX_NONE;
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	// Shut down in the reverse of the order the modules started, so dependants go first.
	TArray<FName> Loaded;
	for (const TPair<FName, FModuleInfo>& Pair : Modules)
	{
		if (Pair.Value.Module)
		{
			Loaded.Add(Pair.Key);
		}
	}
	Loaded.Sort([this](const FName& A, const FName& B)
	{
		return Modules.FindChecked(A).LoadOrder > Modules.FindChecked(B).LoadOrder;
	});
	for (const FName& Name : Loaded)
	{
		UnloadModule(Name, true);
	}
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	const FModuleInfo* Info = Modules.Find(InModuleName);
	return Info != nullptr && Info->Module.IsValid();
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return Modules.Contains(FName(ModuleName));
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	FModuleInfo* Info = Modules.Find(InModuleName);
	return Info != nullptr ? Info->Module.Get() : nullptr;
}

void FModuleManager::FindModules(const TCHAR* WildcardWithoutExtension, TArray<FName>& OutModules) const
{
	const FString Wildcard(WildcardWithoutExtension);
	for (const TPair<FName, FModuleInfo>& Pair : Modules)
	{
		if (Wildcard == TEXT("*") || Pair.Key.ToString() == Wildcard)
		{
			OutModules.Add(Pair.Key);
		}
	}
}
