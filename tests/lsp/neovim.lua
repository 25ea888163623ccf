-- What Neovim makes of the language server.
local Session = dofile(vim.env.OSTRA_LSP_TESTS .. "/session.lua")

Session.run(function()
  local session = Session.start(vim.loop.cwd())
  session:edit("measurable-parameters/rated-discharge.json")

  local group = "hydro.group:operation-1.0.0"
  local hover = session:request("textDocument/hover", Session.goTo(group))
  assert(hover.contents.value:find("Operation\ngroup  hydro.group:operation-1.0.0", 1, true), vim.inspect(hover))
  local definitions = session:request("textDocument/definition", Session.goTo(group))
  assert(definitions[1].uri:match("/groups/operation%.json$"), vim.inspect(definitions))

  local line = vim.fn.search(group, "cw")
  local before = vim.fn.getline(line)
  vim.fn.setline(line, (before:gsub("operation", "operatio")))
  Session.await("the fault is not told", function() return #vim.diagnostic.get(0) == 1 end)
  local fault = vim.diagnostic.get(0)[1]
  assert(fault.lnum == line - 1 and fault.code == "dependency-missing", vim.inspect(fault))
  assert(fault.message:find("did you mean hydro.group:operation-1.0.0?", 1, true), fault.message)

  Session.apply(session:actionsAt(fault.lnum, fault.col)[1].edit)
  assert(vim.fn.getline(line) == before, vim.fn.getline(line))
  Session.await("the fault stays", function() return #vim.diagnostic.get(0) == 0 end)

  local renaming = Session.goTo("hydro.parameter:ratedDischarge")
  renaming.newName = "hydro.parameter:other-1.0.0"
  Session.apply(session:request("textDocument/rename", renaming))
  assert(vim.fn.search("hydro\\.parameter:other-1\\.0\\.0", "cw") > 0, "it is not renamed")

  session:stop()
end)
