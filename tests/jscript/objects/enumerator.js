var list = Host.Items;
list.Add("one"); list.Add("two", "key"); list.Add(3);
var text = "";
for (var e = new Enumerator(list); !e.atEnd(); e.moveNext()) text += e.item() + " ";
e.moveFirst();
WScript.Echo(text, e.item(), e.atEnd());
var none = new Enumerator(new ActiveXObject("Sample.Collection"));
WScript.Echo(none.atEnd(), none.item());
none.moveNext();
for (e = new Enumerator([4, 5]); !e.atEnd(); e.moveNext()) WScript.Echo(e.item());
WScript.Echo(new Enumerator().atEnd(), list("KEY"), list(3), list.Count);
// expect: one two 3  one False
// expect: True 
// expect: 4
// expect: 5
// expect: True two 3 3
