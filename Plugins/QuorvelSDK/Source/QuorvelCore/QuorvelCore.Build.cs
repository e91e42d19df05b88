using UnrealBuildTool;

public class QuorvelCore : ModuleRules
{
	public QuorvelCore(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"DeveloperSettings",
			"Json",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"HTTP",
		});
	}
}
