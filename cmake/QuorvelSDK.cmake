# The plugin's two modules, built from Plugins/QuorvelSDK exactly as they ship. Their dependencies
# mirror the dependency lists of each *.Build.cs, limited to the modules the headless engine has.
set(QuorvelSDKSource "${CMAKE_SOURCE_DIR}/Plugins/QuorvelSDK/Source")

quorvel_add_module(QuorvelCore DIR "${QuorvelSDKSource}/QuorvelCore"
	DEPS Core CoreUObject DeveloperSettings Json
	PRIVATE_DEPS HTTP)
quorvel_add_module(QuorvelUI DIR "${QuorvelSDKSource}/QuorvelUI"
	DEPS Core CoreUObject Engine Slate SlateCore UMG QuorvelCore
	PRIVATE_DEPS Json HTTP)

# The plugin's own engine automation tests (Private/Tests/ of each module), run headless in the
# repository's demo project, with its game module loaded as the editor loads a project's modules:
# its config names an item table whose row structure that module declares. Each run starts a platform
# emulator of its own for the Quorvel.Platform tests and points the project's BaseUrl at it; a platform
# test that finds none fails here, though in a studio's editor it only says so.
quorvel_add_automation_tests(QuorvelAutomationTests FILTER "Quorvel." MODULES QuorvelCore QuorvelUI QuorvelDemo
	EMULATOR_SETTING "Game:[/Script/QuorvelCore.QuorvelSettings]:BaseUrl"
	FAIL_REGULAR_EXPRESSION "No platform answers at")
