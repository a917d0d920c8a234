# SPDX-License-Identifier: MIT
# The rooms of the library, and the rooms that each may link.
# CMakeLists.txt builds the rooms from it and cmake/CheckRooms.cmake holds the includes against it.
set(CARDWRIGHT_ROOMS automation platform scripting storage shared vbscript jscript hosting orv model designer runtime editor qt robot)

set(CARDWRIGHT_USES_automation)
set(CARDWRIGHT_USES_platform automation)
set(CARDWRIGHT_USES_scripting platform)
set(CARDWRIGHT_USES_storage platform)
set(CARDWRIGHT_USES_shared storage)
set(CARDWRIGHT_USES_vbscript scripting)
set(CARDWRIGHT_USES_jscript platform)
set(CARDWRIGHT_USES_hosting shared scripting)
set(CARDWRIGHT_USES_orv platform)
set(CARDWRIGHT_USES_model shared)
set(CARDWRIGHT_USES_designer model)
set(CARDWRIGHT_USES_runtime model)
set(CARDWRIGHT_USES_editor model)
set(CARDWRIGHT_USES_qt runtime designer editor)
set(CARDWRIGHT_USES_robot qt hosting orv)

# Rooms that the program links itself; its modules bring the others when they are needed.
set(CARDWRIGHT_PROGRAM_ROOMS automation platform scripting storage shared vbscript hosting)

# Foreign libraries that only the named rooms may see: in their headers too, or hidden in their sources.
set(CARDWRIGHT_EXTERNAL_qt Qt6::Widgets)
set(CARDWRIGHT_EXTERNAL_robot Qt6::Widgets)
set(CARDWRIGHT_HIDDEN_orv GDAL::GDAL)
set(CARDWRIGHT_HIDDEN_editor PkgConfig::MDB PkgConfig::SQLITE)
set(CARDWRIGHT_HIDDEN_scripting PkgConfig::PCRE2)
set(CARDWRIGHT_HIDDEN_jscript PkgConfig::MOZJS)

# Rooms whose classes have signals or properties of the toolkit, for which its meta-object compiler runs.
set(CARDWRIGHT_SIGNALS_qt ON)
set(CARDWRIGHT_SIGNALS_robot OFF)

# The headers that are installed: what a host needs to fill in and to design forms, to be asked by them, and to give them
# script engines. They include no others. All further headers are internal to the library.
set(CARDWRIGHT_INSTALLED_automation Array.h Collection.h Conversions.h Errors.h MemberTable.h MemoryBudget.h Object.h
    Ref.h Text.h TextRep.h Variant.h)
set(CARDWRIGHT_INSTALLED_platform Color.h DesignSurface.h Desktop.h Font.h HostConnection.h MenuItem.h Picture.h
    PropertyBag.h Scale.h ScreenRect.h ScriptControl.h ScriptEngine.h ScriptLanguages.h Surface.h Widget.h
    WidgetListener.h)
set(CARDWRIGHT_INSTALLED_storage CIni.h CodePage.h)
set(CARDWRIGHT_INSTALLED_shared FeatureTypes.h)
set(CARDWRIGHT_INSTALLED_vbscript VbScriptEngine.h)
set(CARDWRIGHT_INSTALLED_jscript JScriptEngine.h)
set(CARDWRIGHT_INSTALLED_hosting ClassRegistry.h FormScripts.h)
set(CARDWRIGHT_INSTALLED_orv EmbeddedHost.h)
set(CARDWRIGHT_INSTALLED_model CForm.h ClassTable.h Enums.h FormDocument.h FormOwner.h IControl.h TableControl.h)
set(CARDWRIGHT_INSTALLED_designer FormDesigner.h HandleListener.h Placement.h)
set(CARDWRIGHT_INSTALLED_runtime FormInput.h Vellum.h)
set(CARDWRIGHT_INSTALLED_editor OrvEditor.h)
set(CARDWRIGHT_INSTALLED_qt FormDesigner.h FormInput.h Library.h OrvEditor.h VisualControl.h desktop/QtDesktop.h
    values/QtText.h)

# GCC 12 takes the library's list of roots on the stack for pointers left dangling.
set(CARDWRIGHT_OPTIONS_jscript $<$<CXX_COMPILER_ID:GNU>:-Wno-dangling-pointer>)

# Sources that derive from classes of a library built without type information, and must do without too.
set(CARDWRIGHT_NO_RTTI_jscript spidermonkey/ProxyTraps.cpp)

# Sources that are never compiled in a batch with others. The interpreter's loop is as quick as the compiler's choice of
# registers for it, which must not depend on what else is in the batch.
set(CARDWRIGHT_ALONE_vbscript machine/Interpreter.cpp)
