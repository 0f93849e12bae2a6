' A thousand objects used and released, twice; one more keeps the server while its memory is looked at, which the files
' seen1 and seen2 tell of.
Dim kept, files, batch, i, made
Set files = CreateObject("Scripting.FileSystemObject")
Set kept = CreateObject("Vorlan.SB_GeneralFunctions")
kept.LongToBin 1, 8
For batch = 1 To 2
  For i = 1 To 1000
    Set made = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
    made.Initialize Nothing
    If made.PRstr_MessageID <> "00000001" Then WScript.Quit 1
  Next
  Set made = Nothing
  WScript.Echo "done"
  Do Until files.FileExists("seen" & batch)
  Loop
Next
checks = 1
