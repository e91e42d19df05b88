using UnrealBuildTool;

public class QuorvelUI : ModuleRules
{
	public QuorvelUI(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Engine",
			"Slate",
			"SlateCore",
			"UMG",
			"QuorvelCore",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"Json",
			// The automation tests watch the HTTP manager to see what the panel sends.
			"HTTP",
		});
	}
}
