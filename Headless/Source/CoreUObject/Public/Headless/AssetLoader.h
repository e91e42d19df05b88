// The seam through which soft paths load assets that are not in memory. The engine loads packages
// from disk; the headless build asks whatever loader was installed (none by default).
#pragma once

#include "UObject/SoftObjectPath.h"

namespace UE::Headless
{
	class IAssetLoader
	{
	public:
		virtual ~IAssetLoader() = default;

		/** Creates the object Path names, outered so that Path.ResolveObject() finds it; null when there is no such asset. */
		virtual UObject* LoadAsset(const FSoftObjectPath& Path) = 0;
	};

	/** Installs the loader (not owned); null removes it. */
	COREUOBJECT_API void SetAssetLoader(IAssetLoader* Loader);
	COREUOBJECT_API IAssetLoader* GetAssetLoader();
}
