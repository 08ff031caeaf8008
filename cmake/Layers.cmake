# The table of the house: which folder of src/ belongs to which layer, from the ground up.
# The build, the tests and the include check all read this one file.
# A folder may use itself and the folders above it in this file, none below: so no two folders
# ever need each other.

set(SKERRYMOOR_FOLDERS_core
    Base
    DataHandler
    DataHandler/Processor
    DataMiningTools/TemplateMatcher/Data
    CutHandler
    CutHandler/PIPHandler
    LabelHandler
    Recording
    FileHandler
    DataMiningTools/Signal
    DataMiningTools/Search
    DataMiningTools/TemplateMatcher
    DataMiningTools/RuleAssociationWizard)

set(SKERRYMOOR_FOLDERS_plot
    Visualizers/TimeIntensityGraph/Plot)

set(SKERRYMOOR_FOLDERS_ui
    GUI/Toolkit
    Visualizers/TimeIntensityGraph
    CutHandler/Ui
    LabelHandler/Ui
    FileHandler/FileImporter
    FileHandler/Ui
    GroundTruith
    Visualizers/HeatMap
    DataMiningTools/TemplateMatcher/Data/Ui
    DataMiningTools/Search/Ui
    DataMiningTools/TemplateMatcher/TemplateWizard
    DataMiningTools/RuleAssociationWizard/Ui
    GUI/DataProcessor
    GUI/Results
    GUI)

# Sets OUT to the layer of FOLDER (relative to src/ or tests/), or to an empty string.
function(skerrymoor_layer_of FOLDER OUT)
  set(${OUT} "" PARENT_SCOPE)
  foreach(layer core plot ui)
    if(FOLDER IN_LIST SKERRYMOOR_FOLDERS_${layer})
      set(${OUT} ${layer} PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

# Sets OUT to the place of FOLDER in the order of all folders, -1 when it is not in the table.
function(skerrymoor_place_of FOLDER OUT)
  set(folders ${SKERRYMOOR_FOLDERS_core} ${SKERRYMOOR_FOLDERS_plot} ${SKERRYMOOR_FOLDERS_ui})
  list(FIND folders "${FOLDER}" place)
  set(${OUT} ${place} PARENT_SCOPE)
endfunction()
