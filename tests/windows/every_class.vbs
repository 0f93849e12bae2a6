' Every class can be created by its name, with and without version: the arguments are a file with a name in each line.
Dim lines, name, holder, made, versioned
Set holder = CreateObject("Vorlan.SB_Sector")
Set lines = CreateObject("Scripting.FileSystemObject").OpenTextFile(WScript.Arguments(0))
Do Until lines.AtEndOfStream
  name = lines.ReadLine
  Set made = Nothing
  Set versioned = Nothing
  On Error Resume Next
  Set made = CreateObject(name)
  Set versioned = CreateObject(name & ".1")
  ' An object is made when it is first used: here, handed over and back.
  Set holder.PRobj_TestReport = made
  Holds name & ": " & Err.Description, Err.Number = 0 And Not made Is Nothing And Not versioned Is Nothing
  Holds name & " comes back as itself", holder.PRobj_TestReport Is made
  Err.Clear
  made.NoSuchMember
  Equal name & " without such a member", Err.Number, 438
  Err.Clear
  On Error Goto 0
Loop
