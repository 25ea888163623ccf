-- What Neovim makes of the language server. It leaves with 1 when something is not as it should be.
local function run()
  local folder = vim.loop.cwd()
  local file = folder .. "/measurable-parameters/rated-discharge.json"
  vim.cmd("edit " .. file)
  local client = vim.lsp.start_client({
    name = "ostra-params",
    cmd = { vim.env.OSTRA_PARAMS, "lsp" },
    root_dir = folder,
    workspace_folders = { { uri = vim.uri_from_fname(folder), name = "catalogue" } },
  })
  assert(client, "the server does not start")
  assert(vim.lsp.buf_attach_client(0, client), "the server does not take the file")
  assert(vim.wait(20000, function() return vim.lsp.buf_get_clients(0)[client] end), "the server is not there")

  local function request(method, params)
    local answers, failure = vim.lsp.buf_request_sync(0, method, params, 20000)
    assert(answers, failure)
    local answer = answers[client]
    assert(answer and not answer.error, vim.inspect(answer))
    return answer.result
  end
  local function place(text)
    local line = vim.fn.search(text, "cw")
    assert(line > 0, text .. " is not there")
    return vim.lsp.util.make_position_params(0, "utf-16")
  end

  local group = "hydro\\.group:operation-1\\.0\\.0"
  local hover = request("textDocument/hover", place(group))
  assert(hover.contents.value:find("Operation\ngroup  hydro.group:operation-1.0.0", 1, true), vim.inspect(hover))
  local definitions = request("textDocument/definition", place(group))
  assert(definitions[1].uri:match("/groups/operation%.json$"), vim.inspect(definitions))

  local line = vim.fn.search(group, "cw")
  local before = vim.fn.getline(line)
  vim.fn.setline(line, (before:gsub("operation", "operatio")))
  assert(vim.wait(20000, function() return #vim.diagnostic.get(0) == 1 end), "the fault is not told")
  local fault = vim.diagnostic.get(0)[1]
  assert(fault.lnum == line - 1 and fault.code == "dependency-missing", vim.inspect(fault))
  assert(fault.message:find("did you mean hydro.group:operation-1.0.0?", 1, true), fault.message)

  local params = vim.lsp.util.make_range_params(0, "utf-16")
  params.context = { diagnostics = {} }
  params.range = { start = { line = fault.lnum, character = fault.col }, ["end"] = { line = fault.lnum, character = fault.col } }
  local actions = request("textDocument/codeAction", params)
  vim.lsp.util.apply_workspace_edit(actions[1].edit, "utf-16")
  assert(vim.fn.getline(line) == before, vim.fn.getline(line))
  assert(vim.wait(20000, function() return #vim.diagnostic.get(0) == 0 end), "the fault stays")

  local renaming = place("hydro\\.parameter:ratedDischarge")
  renaming.newName = "hydro.parameter:other-1.0.0"
  vim.lsp.util.apply_workspace_edit(request("textDocument/rename", renaming), "utf-16")
  assert(vim.fn.search("hydro\\.parameter:other-1\\.0\\.0", "cw") > 0, "it is not renamed")

  vim.lsp.stop_client(client)
  assert(vim.wait(20000, function() return vim.lsp.get_client_by_id(client) == nil end), "the server does not stop")
end

local isGood, message = pcall(run)
print(isGood and "good" or message)
vim.cmd(isGood and "qall!" or "cquit 1")
