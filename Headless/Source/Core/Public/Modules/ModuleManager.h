#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Modules/ModuleInterface.h"
#include "Templates/Function.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

/** A module with nothing to do at startup or shutdown. */
class FDefaultModuleImpl : public IModuleInterface
{
};

class FDefaultGameModuleImpl : public FDefaultModuleImpl
{
public:
	virtual bool IsGameModule() const override
	{
		return true;
	}
};

enum class ELoadModuleFlags
{
	None = 0x0,
	LogFailures = 1 << 0,
};

/**
 * Knows every module compiled into the process and loads them on request. Each module registers
 * a factory when its binary is loaded (IMPLEMENT_MODULE); LoadModule creates the module object
 * and calls StartupModule once.
 */
class FModuleManager
{
public:
	using FInitializeStaticallyLinkedModule = TFunction<IModuleInterface*()>;

	static CORE_API FModuleManager& Get();

	CORE_API void RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializer);

	CORE_API IModuleInterface* LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags = ELoadModuleFlags::None);
	CORE_API IModuleInterface& LoadModuleChecked(const FName InModuleName);
	CORE_API bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);
	CORE_API void UnloadModulesAtShutdown();

	CORE_API bool IsModuleLoaded(const FName InModuleName) const;
	CORE_API bool ModuleExists(const TCHAR* ModuleName) const;
	CORE_API IModuleInterface* GetModule(const FName InModuleName);
	CORE_API void FindModules(const TCHAR* WildcardWithoutExtension, TArray<FName>& OutModules) const;

	template<typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName ModuleName)
	{
		return static_cast<TModuleInterface&>(Get().LoadModuleChecked(ModuleName));
	}

	template<typename TModuleInterface>
	static TModuleInterface& GetModuleChecked(const FName ModuleName)
	{
		IModuleInterface* Module = Get().GetModule(ModuleName);
		check(Module != nullptr);
		return static_cast<TModuleInterface&>(*Module);
	}

	template<typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName ModuleName)
	{
		return static_cast<TModuleInterface*>(Get().GetModule(ModuleName));
	}

private:
	struct FModuleInfo
	{
		FInitializeStaticallyLinkedModule Initializer;
		TUniquePtr<IModuleInterface> Module;
		int32 LoadOrder = INDEX_NONE;
	};

	TMap<FName, FModuleInfo> Modules;
	int32 NextLoadOrder = 0;
};

/** Registers one module's factory with the module manager while the binary that holds it is loaded. */
template<class ModuleClass>
class FStaticallyLinkedModuleRegistrant
{
public:
	explicit FStaticallyLinkedModuleRegistrant(const TCHAR* InModuleName)
	{
		FModuleManager::Get().RegisterStaticallyLinkedModule(FName(InModuleName), []() -> IModuleInterface*
		{
			return new ModuleClass();
		});
	}
};

#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	static FStaticallyLinkedModuleRegistrant<ModuleImplClass> ModuleRegistrant##ModuleName(TEXT(#ModuleName)); \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() \
	{ \
	} \
	extern "C" __attribute__((visibility("default"), weak)) void ThisIsAnUnrealEngineModule() \
	{ \
	}

#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
#define IMPLEMENT_PRIMARY_GAME_MODULE(ModuleImplClass, ModuleName, GameName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
