# Build helpers shared by the headless engine, the plugin and the tests.
#
# quorvel_add_module(Name [DIR dir] [DEPS ...] [PRIVATE_DEPS ...] [LIBS ...])
#   One shared library per engine module, from <dir>/Public and <dir>/Private, as the engine lays
#   modules out. Every header under the module that declares reflected types goes through the
#   header tool; the generated code is compiled into the module.
#
# quorvel_add_test(Name SOURCES ... [DEPS ...] [REFLECT_DIRS ...])
#   One GoogleTest executable registered with CTest. Headers in REFLECT_DIRS (default: the source
#   directory of the call) that declare reflected types go through the header tool too, so tests
#   can declare their own classes, structs and delegates.

set(QUORVEL_GENERATED_DIR "${CMAKE_BINARY_DIR}/Generated")

# Of the given headers, the ones that need the header tool: those that use a reflection macro or a
# dynamic delegate.
function(_quorvel_reflected_among OutVar)
	set(Result "")
	foreach(Header IN LISTS ARGN)
		file(STRINGS "${Header}" Hits REGEX "^[ \t]*(UCLASS|USTRUCT|UENUM|GENERATED_BODY|DECLARE_DYNAMIC_)" LIMIT_COUNT 1)
		if(Hits)
			list(APPEND Result "${Header}")
		endif()
	endforeach()
	set(${OutVar} "${Result}" PARENT_SCOPE)
endfunction()

# The headers under the given directories that need the header tool.
function(_quorvel_reflected_headers OutVar)
	set(Candidates "")
	foreach(Dir IN LISTS ARGN)
		file(GLOB_RECURSE Found CONFIGURE_DEPENDS "${Dir}/*.h")
		list(APPEND Candidates ${Found})
	endforeach()
	_quorvel_reflected_among(Result ${Candidates})
	set(${OutVar} "${Result}" PARENT_SCOPE)
endfunction()

# Runs the header tool over the given headers for one module; adds the generated sources to Target.
function(_quorvel_reflect Target ModuleName)
	set(Headers ${ARGN})
	set(OutDir "${QUORVEL_GENERATED_DIR}/${ModuleName}")
	set(Outputs "${OutDir}/${ModuleName}.init.gen.cpp")
	foreach(Header IN LISTS Headers)
		get_filename_component(Base "${Header}" NAME_WE)
		list(APPEND Outputs "${OutDir}/${Base}.generated.h" "${OutDir}/${Base}.gen.cpp")
	endforeach()
	add_custom_command(
		OUTPUT ${Outputs}
		COMMAND HeaderTool --module ${ModuleName} --output "${OutDir}" ${Headers}
		DEPENDS HeaderTool ${Headers}
		COMMENT "Reflecting ${ModuleName}"
		VERBATIM)
	target_sources(${Target} PRIVATE ${Outputs})
	target_include_directories(${Target} PUBLIC "${OutDir}")
endfunction()

function(quorvel_add_module Name)
	cmake_parse_arguments(Arg "" "DIR" "DEPS;PRIVATE_DEPS;LIBS" ${ARGN})
	if(NOT Arg_DIR)
		set(Arg_DIR "${CMAKE_CURRENT_SOURCE_DIR}")
	endif()
	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS "${Arg_DIR}/Private/*.cpp")
	add_library(${Name} SHARED ${Sources})
	string(TOUPPER "${Name}_API" ApiMacro)
	target_compile_definitions(${Name} PUBLIC "${ApiMacro}=" PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	target_include_directories(${Name} PUBLIC "${Arg_DIR}/Public" PRIVATE "${Arg_DIR}/Private")
	target_link_libraries(${Name} PUBLIC ${Arg_DEPS} PRIVATE ${Arg_PRIVATE_DEPS} ${Arg_LIBS})
	_quorvel_reflected_headers(Reflected "${Arg_DIR}/Public" "${Arg_DIR}/Private")
	if(Reflected)
		_quorvel_reflect(${Name} ${Name} ${Reflected})
	endif()
endfunction()

function(quorvel_add_test Name)
	cmake_parse_arguments(Arg "" "" "SOURCES;DEPS;REFLECT_DIRS" ${ARGN})
	if(NOT Arg_REFLECT_DIRS)
		set(Arg_REFLECT_DIRS "${CMAKE_CURRENT_SOURCE_DIR}")
	endif()
	add_executable(${Name} ${Arg_SOURCES})
	target_compile_definitions(${Name} PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	target_include_directories(${Name} PRIVATE ${Arg_REFLECT_DIRS})
	target_link_libraries(${Name} PRIVATE ${Arg_DEPS} GTest::gtest GTest::gmock GTest::gtest_main)
	_quorvel_reflected_headers(Reflected ${Arg_REFLECT_DIRS})
	if(Reflected)
		_quorvel_reflect(${Name} ${Name} ${Reflected})
	endif()
	add_test(NAME ${Name} COMMAND ${Name} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}")
	set_tests_properties(${Name} PROPERTIES TIMEOUT 300)
endfunction()

# quorvel_add_benchmark(Name SOURCES ... [DEPS ...])
#   One Google Benchmark executable. The headers listed among its SOURCES that declare reflected
#   types go through the header tool, as a test's do; a benchmark of plain C++ lists none.
function(quorvel_add_benchmark Name)
	cmake_parse_arguments(Arg "" "" "SOURCES;DEPS" ${ARGN})
	find_package(benchmark REQUIRED)
	add_executable(${Name} ${Arg_SOURCES})
	target_compile_definitions(${Name} PRIVATE "UE_MODULE_NAME=\"${Name}\"")
	target_include_directories(${Name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
	target_link_libraries(${Name} PRIVATE ${Arg_DEPS} benchmark::benchmark)
	set(Headers "")
	foreach(Source IN LISTS Arg_SOURCES)
		if(Source MATCHES "\\.h$")
			get_filename_component(Header "${Source}" ABSOLUTE)
			list(APPEND Headers "${Header}")
		endif()
	endforeach()
	_quorvel_reflected_among(Reflected ${Headers})
	if(Reflected)
		_quorvel_reflect(${Name} ${Name} ${Reflected})
	endif()
endfunction()
