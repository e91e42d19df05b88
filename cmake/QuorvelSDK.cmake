# The plugin's two modules, built from Plugins/QuorvelSDK exactly as they ship. Their dependencies
# mirror the dependency lists of each *.Build.cs, limited to the modules the headless engine has.
set(QuorvelSDKSource "${CMAKE_SOURCE_DIR}/Plugins/QuorvelSDK/Source")

quorvel_add_module(QuorvelCore DIR "${QuorvelSDKSource}/QuorvelCore"
	DEPS Core CoreUObject DeveloperSettings Json
	PRIVATE_DEPS HTTP)
quorvel_add_module(QuorvelUI DIR "${QuorvelSDKSource}/QuorvelUI"
	DEPS Core CoreUObject Engine Slate SlateCore UMG QuorvelCore
	PRIVATE_DEPS Json)
