# The table of the house: which folder of src/ belongs to which layer.
# The build, the tests and the include check all read this one file.
# A folder may use its own layer and those below it: ui -> plot -> core.

set(SKERRYMOOR_FOLDERS_core
    CutHandler
    CutHandler/PIPHandler
    DataHandler
    DataHandler/Processor
    DataMiningTools/RuleAssociationWizard
    DataMiningTools/TemplateMatcher
    DataMiningTools/TemplateMatcher/Data
    FileHandler
    LabelHandler)

set(SKERRYMOOR_FOLDERS_plot
    TemporalLens/Axes
    Visualizers/TimeIntensityGraph/Plot)

set(SKERRYMOOR_FOLDERS_ui
    CutHandler/Ui
    DataMiningTools/RuleAssociationWizard/Ui
    DataMiningTools/TemplateMatcher/Data/Ui
    DataMiningTools/TemplateMatcher/TemplateWizard
    FileHandler/FileImporter
    GUI
    GUI/DataProcessor
    GroundTruith
    Visualizers/HeatMap
    Visualizers/TimeIntensityGraph
    Visualizers/TimeIntensityGraph/TemplateMatcher)

# Sets OUT to the layer of FOLDER (relative to src/ or tests/), or to an empty string.
function(skerrymoor_layer_of FOLDER OUT)
  set(${OUT} "" PARENT_SCOPE)
  foreach(layer core plot ui)
    if(FOLDER IN_LIST SKERRYMOOR_FOLDERS_${layer})
      set(${OUT} ${layer} PARENT_SCOPE)
    endif()
  endforeach()
endfunction()
