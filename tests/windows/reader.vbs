' The parameter file is read by another server's object, which answers 00000001 to everything.
Dim parameters
Set parameters = CreateObject("Vorlan.SB_GlobalParameters")
parameters.PRstr_FileName = "C:\any.ini"
Equal "a text", parameters.GetParamStringValue("SECTOR 0", "UATI"), "00000001"
Equal "a number", parameters.GetParamIntegerValue("SECTOR 0", "UATI"), 1
Equal "the object itself", parameters.PRobj_IniReader.Whatever, "00000001"
parameters.PRobj_IniReader.End
