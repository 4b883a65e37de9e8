<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was not saved last time is kept as the song %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some support files are missing<byte value="xd"/>
%1<byte value="xd"/>
Please reinstall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reinstall the Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be read to its end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data are too short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: it ends too early.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: it points beyond its end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is too much sound for one file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: a count is below zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: it promises more than it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: a text is longer than its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: a sound is longer than its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: a sound has no head.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: the length of a sound is below zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> No beat file found to show here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Beats folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> This needs beat &apos;.wav&apos; file and 32x32 picture &apos;.bmp&apos; file as pair.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Please reinstall the software.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a picture to select a beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a .wav file to use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave files(*.wav)|*.wav|All files|*.*|%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a picture file (32x32) to use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture files(*.bmp;*.jpg;*.gif;*.png)|*.bmp;*.jpg;*.gif;*.png|All files|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The duration of this file is %1 seconds,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will be trimmed to 3 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to load wav file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error adding beat<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error renaming beat<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error deleting beat<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a wav file and small (32x32) bmp picture file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a .wav file to add as a new beat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now select a picture (32x32) file to use for this new beat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New beat is added as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a beat to rename.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an original Beat from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renaming is not possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a new name for this beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the new name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a beat to delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will delete the selected beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue bordered are originals, red bordered are your new beats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This an original Beat from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It can not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Yes to delete, No to keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to delete this Beat?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beat name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Confirm Delete Beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a picture to choose a beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the chosen Beat. Click on it to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That shows the selected beat, click on it to play this beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That shows the name of the selected beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That shows the duration of the selected beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Choose a Beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Ok after choosing a beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel button, use it to leave the beat as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play button, click on it to play selected beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds more beats with your wav file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renames the beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This button will deletes the selected beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help button, use it to see help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No beat file found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[none]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a Beat first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Loading Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.%2 Sec(Only 3 seconds allowed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.%2 Sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be read and stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Getting your %1 ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 could not be made again: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following error occurd while copying folder %1<byte value="xd"/>
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 may not be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint a song and hear it grow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free software: you may use it, share it and change it.
GNU General Public License, version 3 or later (GPL-3.0-or-later).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The makers&apos; pages: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to see the makers&apos; pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Audio Type to add:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Add Audio Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a wav file to open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave File(*.wav)|*.wav|All files|*.*|%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use less then 2 minutes audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load wav file failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No wave Data found in file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please drop one sound at a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This sound is not on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save it here first and drop it then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - [%2]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Song is changed, say &quot;Yes&quot; to save if you need it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error making new file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Opening file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This song is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your song &quot;%1&quot; is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Change Song Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Saving file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Failed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the Play button below this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the Tune button below this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add audio track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add music track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to delete this Track?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track No: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Confirm Delete Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint here with the brush and the eraser. The arrow keys scroll, the space bar plays and stops. Control and an arrow key choose a cell, Shift and Page Up or Page Down one that is eight cells away. Enter uses the tool on it. Control, Shift and an arrow key draw.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please paint on this track to play with others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll the tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll through the song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buttons of the tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a track with up and down and its button with left and right, press Enter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Star</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Audio/Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune Button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I cannot find a loudspeaker to play your music on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug in headphones or a loudspeaker and press play again. Or ask a grown-up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time, cell %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1, cell %2, painted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1, cell %2, empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main Song Track (all tracks mixed), use play tool and click on this to play song from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music tracks, use the paint brush and eraser to draw here. Or use play tool to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select tune for track using tune button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please paint on the track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the paint button and draw on the track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a tune or edit it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the first button on the left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This track is not painted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the Brush button and paint on the track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please click on the painted area on the track to play from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please paint on the track, after that you can play it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your recorded sound looks like this</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide this to see the other parts of your sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a selection on the waveform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(by mouse drag) to adjust volume or delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %1 - Edit Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the mouse over a part to select it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok button, use it to keep the sound as it is now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel button, use it to leave the sound as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play button, click on it to play this audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Louder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an audio part and use this up arrow to increase the volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Softer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an audio part and use this down arrow to reduce the volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the unwanted audio and use this button to delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In Button, click on it to zoom in the waveform display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out Button, click on it to zoom out the waveform display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not delete all,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a part and delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This should show moving up-down when you sing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loudness on the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loudness on the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much is recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the recorded duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will open the recording control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program %1 is not found,<byte value="xd"/>
that is needed to set recording sound source<byte value="xd"/>
Please set recording source using volume control in the task bar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %1 - Record Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will stop and bring the recording to track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will stop and cancel the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording bird</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume of the loudspeakers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume of the microphones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Volume slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide this pointer to adjust Recording Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to create DirectX Sound Capture Buffer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please plug in a microphone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Throw this recording away?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bird</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your recorded sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your recorded sound: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll the sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Done - the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Done - the microphone is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Done - it cannot become any longer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - I cannot hear you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound could not be converted: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound could not be converted: the disk may be full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound of this format cannot be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound cannot be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The libraries that read WMA files are not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The WMA file is damaged or cut short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds no sound that can be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds no sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound of this kind cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder could be made in %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mail program is starting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the wma file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to send email. Song is saved to file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select wav file name to save the song as audio (.wav) file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a .wav file to save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave files(*.wav)|*.wav|All files|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving the song as audio (.wav) file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the wav file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good! Your song is saved as audio (.wav) file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to save the song as audio (.wav) file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error saving song to wav file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select wma file name to save the song as audio (.wma) file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a WMA file name to save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Media Audio files(*.wma)|*.wma|All files|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving the song as audio (.wma) file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good! Your song is saved as audio (.wma) file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to save the song as audio (.wma) file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error saving song to wma<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file with this name already exists: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to overwrite?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixing your song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song i composed myself - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hi <byte value="xd"/>
<byte value="xd"/>
Listen to this song &quot;%1&quot; I composed with %2<byte value="xd"/>
%3<byte value="xd"/>
<byte value="xd"/>
Talk to you later<byte value="xd"/>
%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the song name in the list to select one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a song to copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The song &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is copied to &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a song to delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to delete this song?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a song to rename.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the new name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A song with this name already exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Copying file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Deleting file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Renaming file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Songs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type your song name here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy button, select a song and use this button to copy it to make one more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete button, select a song and use this button to delete it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename button, select a song and use this button to change it&apos;s name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wav file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wma file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song not selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a name in song name text box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a song name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommended to click &apos;No&apos; and then save with another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A song with this name already exists: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Open song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Select a song and click OK to open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No song found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Ok to open the selected song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a song name to select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Save song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> List of available songs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Check the song name and Click OK to save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Ok to save the song to the name entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of available songs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> New song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Type the song name here and click OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Ok to create a new song with the name entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to find Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Loading File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed Loading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This song has no tracks, so it is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to get WMA Codec Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to write WMA file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open WMA Writer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed Writing to WMA file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed Closing WMA writer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length needed = %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This WMA Writer can write only 16 bit wave file<byte value="xd"/>
This is %1 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This WMA Writer can write only stereo wave file<byte value="xd"/>
This is %1 channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wav file Write error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be the name of a song.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is another file with this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other sounds|*.wav;*.mp3;*.ogg;*.oga;*.opus;*.flac;*.m4a;*.aac;*.wma;*.aif;*.aiff;*.amr;*.3gp;*.mp4;*.m4v;*.mov;*.webm;*.mkv;*.avi;*.au;*.caf;*.wv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clip percent is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sound lies before the beginning.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sample does not fit into 16 bits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not Play Sound<byte value="xd"/>
Driver busy or not ready<byte value="xd"/>
Check whether sound driver is ON (in options window)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Play error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Continue error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Replay error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to Replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Pause error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Wave error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing to Play Buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zero size wave found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format not Known to write wave file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play wave error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Loop%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an error initializing Sound Driver
Check whether another application is using sound driver exclusively.
If yes, put that off and then and then run this program again.

Other wise, if this problem persists you may need to reinstall DirectX9 or Sound Card&apos;s Driver<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Track %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The track has fewer cells than the song.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tune has no such step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound has no rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change All button, use it to choose one instrument for all steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instruments: click on a picture to choose another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pianos: click on a key to change the pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the number of steps and try.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps of the tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32 Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other...!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of steps, use it to make the tune longer or shorter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the Number of Steps:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Enter between 2 to 64)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not valid,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a number between 2 to 64.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll the steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide this to see the other steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a picture to choose a tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the chosen Tune. Click on it to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That shows the selected tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That shows the name of the selected tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That shows who created the selected tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a picture to select a tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a Tune first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An Original %1 Tune is there with this name &quot;%2&quot;<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter another name for this Tune and save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Tune is there with this name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to overwrite that?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a picture to select a Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a Tune and try this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue bordered are originals, red bordered are your new tunes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is an original Tune from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This tune can not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to delete this Tune?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Confirm Delete Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a small (32x32) bmp picture file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture files|*.bmp;*.jpg;*.gif;*.png|All files|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error selecting picture file<byte value="xd"/>
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This button will delete the selected tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Choose a Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Ok after choosing and/or editing a tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play button, use it to hear this tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random button, use it to make up a surprise tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New button, use it to start making your own new tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture button, use it to choose a picture for this tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save button, use it to keep this tune among your tunes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel button, use it to leave the track&apos;s tune as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click a lamp to switch a step on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tunes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> No Tune file found to show here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Tunes folder: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> This needs tune &apos;.TqTun&apos; file &amp; 32x32 picture &apos;.bmp&apos; file as pair.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Save Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the name of this Tune here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can type your name here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a Tune name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next step is ON,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not move this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Failed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last step is ON,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not move that to insert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Step Failed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move all to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move all to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Step to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Step to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a step to make in ON/OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a piano key to change pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the icon to choose an instrument beat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume Slider, Click on the slider to change Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration slider, Click on the slider to change Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1, off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1, on, no instrument, pitch %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1, on, %2, pitch %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is too large for a tune.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a Tune Name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a your name in &quot;Created By&quot; box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Loading Tune File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll the pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Painting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing a sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your songs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taking songs home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song name, use the &apos;Change button&apos; to change it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song created by.., use the &apos;Change button&apos; to enter your name there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About button, use it to read about Tonquill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint brush button, use this to choose paint brush for painting the tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email Song button, use it to send this song to your friend by email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser button, use this to choose eraser for painting the tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New button, use it to start making your own new song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open button, use it to open an existing song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play all button, use it to play the full song (all tracks)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop play button, use it to stop any playing sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Tool button, choose this button and click on track to play from there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save button, use it to save the song you made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Song duration in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change button, use it to change &apos;Song name&apos; and &apos;Created by&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tempo percentage, use the tempo slider to change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide this pointer to adjust tempo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tempo slider, use it to change the speed of the song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Music track button. Use it to add a new music track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Audio track button. Use it to record your voice sound or choose a wav file to add as an audio track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recorded button, Click to edit your recording on this track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete button, Click to delete this track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track play button, use it to test play this track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune button, Click to choose a tune, keep mouse over it to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the mouse over any button to read help clue here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no demo to watch yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the Help button to read how to make a song.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save this song?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can change the name of this song here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the Song Title.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A song with this name already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please type another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop button, nothing is saved then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Loading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channal info invalid at byte location 23</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed Loading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sampling rate (%1) not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits per sample not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file promises more sound than it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The String &apos;Data&apos; - is not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be written to its end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part lies outside of the sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave file load error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file name given to write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing wave error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent or Zero size wave found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no sample rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generate Sine Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sample does not fit into 8 bits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file ends before its sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sum of two samples does not fit into 16 bits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: its length is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a sound file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a WMA file, or it is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be written: it is not an ordinary file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A place refers to a sound that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The song has fewer beats than it says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tune has fewer steps than it says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The song has fewer tracks than it says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left and right move from step to step. The space bar switches the step on or off, up and down change its pitch, Shift with left or right its length, Enter chooses its instrument. P plays the step, B its instrument. The menu key has more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file gives a length below zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound is shorter than it says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space does what the picture asks for. The left and the right arrow key show the picture before and the next one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to view other Demo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens a menu of all demos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Demo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the end of the demo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Space to go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look what happens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Space to drag.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Space to click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Picture %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you make now cannot be kept here:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search for a word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I found nothing about &quot;%1&quot;. Try another word.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The big window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choosing a tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing a tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For teachers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is wrong?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play all plays the song</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demo shows you how</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome! Play all plays the song, Demo shows you how to make one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click here to put this card away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Play all to hear the song, or Demo to see how to make one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This song is for the whole class.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It can be copied, but not renamed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Tune is for the whole class.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is something new for you. Do you want it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New tunes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New songs: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New beats: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New surprises for random tunes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Beat is for the whole class.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
