-- A day of an author: what is broken while typing is told at its place and mended, an object that is widely named gets
-- another typeid, and every file is laid out.
local Session = dofile(vim.env.OSTRA_LSP_TESTS .. "/session.lua")
local catalogue = vim.loop.cwd() .. "/catalogue"
local shared = vim.loop.cwd() .. "/shared" -- if there is one

-- A break: a file, what is typed over in it and what is typed, the code of what is told, and the text where that begins.
-- Then the title of the action that mends it; the text is the former one again unless another one is given. Without a
-- title nothing may be offered that mends.
local slips = {
  { "measurable-parameters/rated-discharge.json", "120.5 } } }", "120.5 } } },", "json-syntax", "\n    ]", "Remove ," },
  { "groups/operation.json", '1.0.0",', '1.0.0"', "json-syntax", '"inherits"', "Insert ," },
  { "bool-parameters/spare-runner.json", 'Runner" },', 'Runner" }', "json-syntax", '{ "id": "description"', "Insert ," },
  { "bool-parameters/spare-runner.json", "false", "False", "json-syntax", "False", "Write false in place of False" },
  { "float-ranges/head.json", "true", "TRUE", "json-syntax", "TRUE", "Write true in place of TRUE" },
  { "int-parameters/floor.json", '"Floor"', "'Floor'", "json-syntax", "'Floor'", [[Write "Floor" in place of 'Floor']] },
  { "categories/gates.json", '"Gates"', "“Gates”", "json-syntax", "“Gates”", [[Write "Gates" in place of “Gates”]] },
  { "int-ranges/year.json", "1879", "+1879", "json-syntax", "+1879", "Remove +" },
  { "float-ranges/head.json", "1.5", ".5", "json-syntax", ".5", "Insert 0", "0.5" },
  { "units/kilovolt.json", '"id": "symbol"', 'id: "symbol"', "json-syntax", 'id: "symbol"', 'Write "id" in place of id' },
  { "units/kilovolt.json", '"id": "name"', '"id"= "name"', "json-syntax", '= "name"', "Write : in place of =" },
  { "enumerations/condition.json", '"New",', '"New";', "json-syntax", "; ", "Write , in place of ;" },
  { "string-parameters/manufacturer.json", '"value": "M', '"value":\u{A0}"M', "json-syntax", '\u{A0}"M', "Write a plain blank" },
  { "enumerations/condition.json", " -1", " \u{200B}-1", "json-syntax", "\u{200B}-1", "Remove what cannot be seen" },
  { "reference-parameters/turbine-model.json", "Turbine Model", "Turbine\tModel", "json-syntax", "\tModel",
    "Write \\t in place of \\x09", "Turbine\\tModel" },
  { "string-ranges/serial-number.json", [["\\d{4}/\\d{1,6}"]], [["\d{4}/\d{1,6}"]], "json-syntax", [[\d{4}]],
    [[Write \\d{4}/\\d{1,6} in place of \d{4}/\d{1,6}]] },
  { "groups/operation.json", 'Operation" }', 'Operation" } // first', "json-syntax", "// first" },
  { "enumerations/condition.json", '"Worn"', '"Worn', "json-syntax", 'value": 2' },
  { "groups/operation.json", '"constants"', '<<<<<<< "constants"', "json-syntax", "<<<<<<<" },
  { "int-ranges/year.json", "1879", "01879", "json-syntax", "1879" },
  { "int-ranges/year.json", "1879", "None", "json-syntax", "None" },
  { "measurable-parameters/rated-discharge.json", "120.5", "NaN", "json-syntax", "NaN" },
  { "groups/operation.json", '"Operation"', '"Opera\\tion\\x"', "json-syntax", '\\x"' },
}
local misspelt = {
  { "measurable-parameters/rated-discharge.json", "operation-1", "operatio-1", "dependency-missing",
    '"hydro.group:operatio-1.0.0"', "Write hydro.group:operation-1.0.0 in place of hydro.group:operatio-1.0.0" },
  { "bool-parameters/spare-runner.json", "maintenance-1.0.0", "maintenance", "dependency-missing",
    '"hydro.group:maintenance"', "Write hydro.group:maintenance-1.0.0 in place of hydro.group:maintenance" },
  { "measurable-parameters/rated-discharge.json", "parameter.measurable", "parameter.measureable", "base-unrecognized",
    '"norvex.parameter:parameter.measureable', "Write norvex.parameter:parameter.measurable-3.0.0 in place of "
    .. "norvex.parameter:parameter.measureable-3.0.0" },
  { "measurable-specs/discharge.json", "litrePer", "literPer", "unit-missing", '"hydro.unit:literPer',
    "Write hydro.unit:litrePerSecond-1.0.0 in place of hydro.unit:literPerSecond-1.0.0" },
  { "bool-parameters/spare-runner.json", '"description"', '"decription"', "constant-unknown", '"decription"',
    "Write description in place of decription" },
  { "groups/operation.json", '"name"', '"nmae"', "constant-undefined", '"nmae"', "Write name in place of nmae" },
  { "int-parameters/floor.json", 'typedValue": { "typeid": "hydro', 'typedvalue": { "typeid": "hydro',
    "definition-value-missing", '{ "typeid": "hydro', "Write typedValue in place of typedvalue" },
  { "units/kilovolt.json", '"inherits"', '"inherit"', "inherits-missing", '["norvex', "Write inherits in place of inherit" },
  { "units/kilovolt.json", '"typeid"', '"typeId"', "typeid-missing", '"hydro.unit', "Write typeid in place of typeId" },
  { "int-ranges/year.json", '"constants"', '"constant"', "constant-undefined", "[\n", "Write constants in place of constant" },
  { "categories/intake-gates.json", "category:gates", "category:gate", "dependency-missing", '"hydro.category:gate-',
    "Write hydro.category:gates-1.0.0 in place of hydro.category:gate-1.0.0" },
  { "bool-parameters/spare-runner.json", "spec:inStock", "spec:instock", "dependency-missing", '"hydro.spec:instock',
    "Write hydro.spec:inStock-1.0.0 in place of hydro.spec:instock-1.0.0" },
  { "enumeration-parameters/condition.json", "enumeration:condition", "enumeration:conditon", "dependency-missing",
    '"hydro.enumeration', "Write hydro.enumeration:condition-1.0.0 in place of hydro.enumeration:conditon-1.0.0" },
  { "enumeration-parameters/condition.json", '"id": "value"', '"id": "vlaue"', "value-property-undefined", '"vlaue"',
    "Write value in place of vlaue" },
  { "int-parameters/floor.json", "topBoundary", "topBondary", "member-unknown", "4 }",
    "Write topBoundary in place of topBondary" },
  { "reference-parameters/turbine-model.json", "francisTurbines", "fransisTurbines", "dependency-missing",
    '"hydro.category:fransis', "Write hydro.category:francisTurbines-1.0.0 in place of hydro.category:fransisTurbines-1.0.0" },
}
local others = {
  { "groups/operation.json", '[\n        { "id": "name", "value": "Operation" }\n    ]', "[]", "constant-undefined", "[]",
    "Add the constant name", '[{"id":"name","value":"<name>"}]' },
  { "groups/operation.json", "hydro.group:operation", "hydro.group:safety", "typeid-taken", '"hydro.group:safety' },
  { "bool-parameters/spare-runner.json", "false", '"no"', "boolean-expected", '"no"' },
  { "int-ranges/year.json", "1879", "1879.5", "integer-expected", "1879.5" },
  { "int-parameters/floor.json", "-6", "6", "range-empty", "4 }" },
  { "groups/operation.json", '"id": "name",', '"id": "name", "id": "title",', "member-duplicate", '"name"' },
  { "bool-parameters/spare-runner.json", "hydro.group:maintenance", "hydro.domain:waterway", "dependency-missing",
    '"hydro.domain' },
  { "categories/gates.json", '"value": "Gates"', '"value": "Gates", "typedValue": {}', "value-ignored", "{} }" },
  { "enumerations/condition.json", '"As New"', '"New"', "definition-duplicate", '"New", "value": 1' },
}

local function textOf(buffer) return table.concat(vim.api.nvim_buf_get_lines(buffer or 0, 0, -1, true), "\n") end

local function write(text) vim.api.nvim_buf_set_lines(0, 0, -1, true, vim.split(text, "\n")) end

-- Types over what is there.
local function type(from, to)
  local text = textOf()
  local first, last = text:find(from, 1, true)
  assert(first, from .. " is not there")
  local function place(offset)
    local before = text:sub(1, offset)
    local _, line = before:gsub("\n", "")
    return line, #before:match("[^\n]*$")
  end
  local line, column = place(first - 1)
  local endLine, endColumn = place(last)
  vim.api.nvim_buf_set_text(0, line, column, endLine, endColumn, vim.split(to, "\n"))
end

-- Returns the fault of a code that begins where a text is.
local function faultAt(code, text)
  local all = textOf()
  local offset = assert(all:find(text, 1, true), text .. " is not there") - 1
  offset = offset + (text:sub(1, 1) == "\n" and #text - 1 or 0) -- a text behind a newline: its last character
  local before = all:sub(1, offset)
  local _, line = before:gsub("\n", "")
  for _, fault in ipairs(vim.diagnostic.get(0)) do
    if fault.code == code and fault.lnum == line and fault.col == #before:match("[^\n]*$") then
      return fault
    end
  end
end

local function mending(actions)
  for _, action in ipairs(actions) do
    if action.kind == "quickfix" and not action.title:match("^Create ") then
      return action.title
    end
  end
end

local function tryBreak(session, entry)
  local file, from, to, code, place, title, mended = unpack(entry)
  session:edit(file)
  local before = textOf()
  assert(#vim.diagnostic.get(0) == 0, "it is faulty before: " .. vim.inspect(vim.diagnostic.get(0)))
  type(from, to)
  local isTold = vim.wait(5000, function() return faultAt(code, place) end, 5)
  assert(isTold, "it is not told, but: " .. vim.inspect(vim.diagnostic.get(0)))
  local fault = faultAt(code, place)
  local actions = session:actionsAt(fault.lnum, fault.col)
  if not title then
    assert(not mending(actions), "something is offered: " .. vim.inspect(actions))
    write(before)
    Session.await("it is faulty as it was before", function() return #vim.diagnostic.get(0) == 0 end)
    return
  end
  assert(mending(actions) == title, "offered is " .. vim.inspect(mending(actions)))
  for _, action in ipairs(actions) do
    if action.title == title then
      Session.apply(action.edit)
      break
    end
  end
  local first, last = before:find(from, 1, true)
  local after = before:sub(1, first - 1) .. (mended or from) .. before:sub(last + 1)
  assert(textOf() == after, "it is mended otherwise: " .. textOf())
  local isGone = vim.wait(5000, function() return #vim.diagnostic.get(0) == 0 end, 5)
  assert(isGone, "it stays: " .. vim.inspect(vim.diagnostic.get(0)))
  write(before)
end

local function breakAll(session)
  local count = 0
  local failures = {}
  for _, list in ipairs({ slips, misspelt, others }) do
    for _, entry in ipairs(list) do
      count = count + 1
      local isGood, message = pcall(tryBreak, session, entry)
      if not isGood then
        table.insert(failures, ("%s: %s -> %s\n%s"):format(entry[1], entry[2], entry[3], message))
        vim.cmd("edit!")
      end
    end
  end
  assert(#failures == 0, table.concat(failures, "\n\n"))
  vim.cmd("silent wall")
  print(count .. " breaks told at their places")
end

-- Creates what is named and missing, which then stays as a group that nothing names.
local function createMissing(session)
  session:edit("int-parameters/floor.json")
  type("hydro.group:safety", "hydro.group:visitors")
  Session.await("the fault is not told", function() return faultAt("dependency-missing", '"hydro.group:visitors') end)
  local fault = faultAt("dependency-missing", '"hydro.group:visitors')
  local action = session:actionsAt(fault.lnum, fault.col)[1]
  assert(action.title == "Create the group hydro.group:visitors-1.0.0", action.title)
  Session.apply(action.edit)
  Session.await("the fault stays", function() return #vim.diagnostic.get(0) == 0 end)
  type("hydro.group:visitors", "hydro.group:safety")
  vim.cmd("silent wall")
end

local function filesIn(folder)
  local files = vim.fn.glob(folder .. "/**/*.json", false, true)
  vim.list_extend(files, vim.fn.glob(folder .. "/**/*.ndjson", false, true))
  assert(#files > 0)
  return files
end

-- Returns the texts of the files as the editor has them or, if it has not opened them, the disk.
local function textsOf(folder)
  local texts = {}
  for _, file in ipairs(filesIn(folder)) do
    local buffer = vim.fn.bufnr(vim.fn.fnameescape(file))
    texts[file] = vim.fn.bufloaded(file) == 1 and textOf(buffer) or table.concat(vim.fn.readfile(file), "\n")
  end
  return texts
end

-- Gives an object another typeid and the former one again.
local function renameThereAndBack(session, file, old, new)
  local before = textsOf(session.folder)
  local function rename(from, to)
    session:edit(file)
    local params = Session.goTo('"' .. from .. '"')
    params.position.character = params.position.character + 1
    params.newName = to
    Session.apply(session:request("textDocument/rename", params))
  end
  local start = vim.loop.hrtime()
  rename(old, new)
  local count = 0
  for name, text in pairs(textsOf(session.folder)) do
    assert(not text:find('"' .. old .. '"', 1, true), old .. " is still in " .. name)
    local _, more = text:gsub(vim.pesc('"' .. new .. '"'), "")
    count = count + more
  end
  assert(count > 1, "nothing names " .. new)
  session:edit(file)
  local references = Session.goTo('"' .. new .. '"')
  references.position.character = references.position.character + 1
  references.context = { includeDeclaration = true }
  Session.await("not all of them are known", function() -- as the editor waits before it tells of other buffers
    return #session:request("textDocument/references", references) == count
  end)
  print(("%d places name %s after %d ms"):format(count, new, (vim.loop.hrtime() - start) / 1e6))
  rename(new, old)
  for name, text in pairs(textsOf(session.folder)) do
    assert(text == before[name], name .. " is not what it was")
  end
  vim.cmd("silent wall")
end

local function tool(...)
  local output = vim.fn.system({ vim.env.OSTRA_PARAMS, ... })
  return vim.v.shell_error, output
end

-- Lays every file out, and looks whether the objects are the same.
local function formatAll(session)
  local copy = session.folder .. "-before"
  assert(vim.fn.system({ "cp", "-r", session.folder, copy }) == "")
  local changed = 0
  for _, file in ipairs(filesIn(session.folder)) do
    session:edit(file:sub(#session.folder + 2))
    local edits = session:request("textDocument/formatting", vim.lsp.util.make_formatting_params())
    if #edits > 0 then
      vim.lsp.util.apply_text_edits(edits, 0, "utf-16")
      changed = changed + 1
    end
    vim.cmd("silent write")
  end
  assert(changed > 0, "there is nothing to be laid out")
  print(changed .. " files laid out")
  local code, output = tool("fmt", "--check", session.folder)
  assert(code == 0, output)
  code, output = tool("diff", copy, session.folder)
  assert(code == 0, output)
  local _, faults = tool("check", "-q", "--format", "json", copy)
  local _, faultsAfter = tool("check", "-q", "--format", "json", session.folder)
  local function codes(text)
    return vim.tbl_map(function(fault) return fault.code .. " " .. fault.typeid end, vim.fn.json_decode(text).faults)
  end
  assert(vim.deep_equal(codes(faults), codes(faultsAfter)), "check tells something else")
end

Session.run(function()
  vim.o.hidden = true
  local session = Session.start(catalogue)
  breakAll(session)
  createMissing(session)
  renameThereAndBack(session, "groups/operation.json", "hydro.group:operation-1.0.0", "hydro.group:running-1.0.0")
  formatAll(session)
  session:stop()
  if vim.fn.isdirectory(shared) == 0 then
    print("skipped: the large catalogue, as OSTRA_CATALOGUE does not name one")
    return
  end
  session = Session.start(shared)
  renameThereAndBack(session, "units.ndjson", "qudt.unit:UNITLESS-1.0.0", "qudt.unit:one-1.0.0")
  formatAll(session)
  session:stop()
end)
