// JScript: its numbers, errors and objects.
var failures = 0, checks = 0;
function equal(what, is, wanted) {
  ++checks;
  if (is === wanted) return;
  ++failures;
  WScript.Echo("FAILED " + what + ": " + is + " where " + wanted + " is due");
}

var functions = new ActiveXObject("Vorlan.SB_GeneralFunctions");
equal("a text", functions.LongToBin(5, 8), "00000101");
equal("a number", functions.BinToLong("101"), 5);
equal("a real number", functions.BinToDouble("1" + new Array(41).join("0")), Math.pow(2, 40));
equal("a text beyond ASCII", functions.ConvertAsctoBinary("\u00e4"), "11100100");
equal("a boolean", functions.IsValidNumber("12", true, 12, true, 0), true);
equal("the null object", (new ActiveXObject("Vorlan.SB_Sector")).PRobj_TestReport === null, true);

var message = new ActiveXObject("VorlanSim.MessageObject");
message.Octet(2) = 7;
equal("an indexed property", message.octet(2), 7);

var sent = new ActiveXObject("Vorlan.SB_Ses_MsgSessionClose");
sent.Initialize(null);
sent.PRstr_CloseReason = new String("00000101");
equal("a value in an object", sent.PRstr_CloseReason, "00000101");
try {
  sent.PRstr_CloseReason = "11";
  equal("an error", false, true);
} catch (error) {
  equal("its number", error.number & 0xFFFF, 1);
  equal("its description", error.description, "Length of <CloseReason> field should be 8 bits.");
}

// A plain object takes the place of the report: its members are found in any capitals.
var lines = [];
functions.LogInformation({ addtext: function (text) { lines.push(text); } }, "first\nsecond");
equal("a script's function is called", lines.join("|"), "first|second");

// A script's array is one, but not everything that has a length.
functions.LogScriptSpecificParameters({ addtext: function (text) { lines.push(text); } }, ["One", "Two"], ["1", 2]);
equal("arrays", lines.join("|").indexOf("Two") > 0, true);
var terminal = (new ActiveXObject("VorlanSim.TestSet")).AccessTerminal;
terminal.ConfigurationOrder = [18, 19];
equal("an array is assigned", new VBArray(terminal.ConfigurationOrder).toArray().join(), "18,19");
try {
  terminal.ConfigurationOrder = { length: 1, 0: 18 };
  equal("no array", false, true);
} catch (error) {
  equal("no array", error.number & 0xFFFF, 13);
}

WScript.Echo(checks + " checks, " + failures + " failed");
if (failures > 0 || checks === 0) WScript.Quit(1);
