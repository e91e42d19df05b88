# The plugin's two modules, built from Plugins/QuorvelSDK exactly as they ship. Their dependencies
# mirror the PublicDependencyModuleNames of each *.Build.cs.
set(QuorvelSDKSource "${CMAKE_SOURCE_DIR}/Plugins/QuorvelSDK/Source")

if(EXISTS "${QuorvelSDKSource}/QuorvelCore/Private")
	quorvel_add_module(QuorvelCore DIR "${QuorvelSDKSource}/QuorvelCore"
		DEPS Core CoreUObject Json)
endif()
if(EXISTS "${QuorvelSDKSource}/QuorvelUI/Private")
	quorvel_add_module(QuorvelUI DIR "${QuorvelSDKSource}/QuorvelUI"
		DEPS Core CoreUObject QuorvelCore)
endif()
